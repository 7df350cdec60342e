#include <qz/runtime/objects/Object.h>

#include <ostream>

#include <qz/runtime/objects/Describe.h>
#include <qz/runtime/objects/Exceptions.h>
#include <qz/runtime/objects/Interface.h>
#include <qz/runtime/objects/TypeNames.h>

namespace qz {

QZ_REGISTER_TYPES(TObject);

constinit const TClassRec TObject::ClassRec = DescribeClass<TObject>(u"TObject", {.Unit = u"System"});

bool TClassRec::InheritsFrom(TClass AAncestor) const noexcept {
    for (TClass Class = this; Class != nullptr; Class = Class->Parent)
        if (Class == AAncestor)
            return true;
    return false;
}

const void* TClassRec::FindMaker(TMakerFamily AFamily) const noexcept {
    for (const TMakerEntry& Entry : Makers)
        if (Entry.Family == AFamily)
            return Entry.Make;
    return nullptr;
}

std::ostream& operator<<(std::ostream& AStream, const TClassRec& AClass) {
    return AStream << UnicodeString(AClass.Name());
}

TObject::~TObject() = default;

UnicodeString TObject::ToString() const {
    return ClassName();
}

void* TObject::FindInterface(const TGUID& AIid) noexcept {
    const bool IsRoot = AIid == IInterface::IID;
    for (TClass Class = ClassType(); Class != nullptr; Class = Class->Parent)
        for (const TInterfaceEntry& Entry : Class->Interfaces)
            if (IsRoot || *Entry.Iid == AIid)
                return Entry.Cast(this);
    return nullptr;
}

bool TObject::GetInterface(const TGUID& AIid, void** AObject) {
    *AObject = FindInterface(AIid);
    if (*AObject == nullptr)
        return false;
    static_cast<IInterface*>(*AObject)->_AddRef();
    return true;
}

HRESULT detail::QueryObject(TObject& AObject, const TGUID& AIid, void** AFound) {
    if (AFound == nullptr)
        return E_POINTER_RESULT;
    return AObject.GetInterface(AIid, AFound) ? S_OK_RESULT : E_NOINTERFACE_RESULT;
}

void detail::FreeQuietly(TObject& AObject) noexcept {
    try {
        AObject.Free();
    } catch (...) { // NOLINT(bugprone-empty-catch): the caller of Free receives the first refusal
    }
}

void TObject::Free() {
    if (!BeginDestruction())
        throw EInvalidOperation(u"An instance of %s is freed while it is being destroyed", {ClassName()});
    try {
        BeforeDestruction();
    } catch (...) {
        DestructionRefused();
        throw;
    }
    delete this;
}

} // namespace qz
