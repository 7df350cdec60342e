#include "common/uQzClasses/QzObjectEx.h"

#include <algorithm>

#include "runtime/errors/Exceptions.h"
#include "runtime/objects/Persistent.h"
#include "runtime/reflection/Describe.h"

namespace qz {

constinit const TClassRec TQzObjectEx::ClassRec = DescribeClass<TQzObjectEx>(
    u"TQzObjectEx",
    {.Unit = u"uQzClasses",
     .Interfaces = Interfaces<TQzObjectEx, IQzObjectFreeNotificationEvent, IQzObjectEx>()});

namespace {

// An interface of the object itself, not counted: a count might decide, or end, the life of the object.
template <class I> I* Offered(TObject* AObject) noexcept {
    return AObject == nullptr ? nullptr : static_cast<I*>(AObject->FindInterface(I::IID));
}

} // namespace

// Links that were made while the object was already on its way out.
TQzObjectEx::~TQzObjectEx() {
    while (FFreeNotifies) {
        try {
            NotifyLast();
        } catch (...) { // NOLINT(bugprone-empty-catch): nobody is left to hear of it
        }
    }
}

void TQzObjectEx::OnObjectDestroyed(TObject*) {}

bool TQzObjectEx::AddNotification(TObject* AObject) {
    if (!FFreeNotifies)
        FFreeNotifies = std::make_unique<std::vector<TObject*>>();
    if (std::find(FFreeNotifies->begin(), FFreeNotifies->end(), AObject) != FFreeNotifies->end())
        return false;
    FFreeNotifies->push_back(AObject);
    return true;
}

void TQzObjectEx::FreeNotification(TQzObjectEx* AObject) {
    if (AddNotification(AObject))
        AObject->FreeNotification(this);
}

void TQzObjectEx::FreeNotificationEx(IQzObjectFreeNotificationEvent* AObject) {
    TObject* Other = AObject->Implementor();
    if (auto* Same = dynamic_cast<TQzObjectEx*>(Other)) {
        FreeNotification(Same);
        return;
    }
    if (AddNotification(Other))
        if (auto* Linked = Offered<IQzObjectEx>(Other))
            Linked->FreeNotificationEx(this);
}

void TQzObjectEx::RemoveNotification(TObject* AObject) {
    if (!FFreeNotifies)
        return;
    // Most often the last one goes.
    const auto Found = std::find(FFreeNotifies->rbegin(), FFreeNotifies->rend(), AObject);
    if (Found != FFreeNotifies->rend())
        FFreeNotifies->erase(std::next(Found).base());
    if (FFreeNotifies->empty())
        FFreeNotifies.reset();
}

void TQzObjectEx::RemoveFreeNotification(TQzObjectEx* AObject) {
    RemoveNotification(AObject);
    AObject->RemoveNotification(this);
}

void TQzObjectEx::RemoveFreeNotificationEx(IQzObject* AObject) {
    TObject* Other = AObject->Implementor();
    RemoveNotification(Other);
    if (auto* Linked = Offered<IQzObjectEx>(Other))
        Linked->RemoveNotification(this);
}

void TQzObjectEx::NotifyLast() {
    TObject* Last = FFreeNotifies->back();
    const TQzPolicyHold Hold(Last);
    auto* Listener = Offered<IQzObjectFreeNotificationEvent>(Last);
    if (Listener == nullptr) {
        RemoveNotification(Last);
        detail::RaiseAssertion(u"Assertion failure");
    }
    Listener->OnObjectDestroyed(this);
    RemoveFreeNotificationEx(Listener);
}

void TQzObjectEx::BeforeDestruction() {
    TQzObject::BeforeDestruction();
    while (FFreeNotifies)
        NotifyLast();
}

void TQzObjectEx::Assign(TQzObjectEx* ASource) {
    if (ASource == nullptr)
        AssignError(nullptr, this);
    ASource->AssignTo(this);
}

void TQzObjectEx::AssignTo(TQzObjectEx* ADest) {
    AssignError(this, ADest);
}

void TQzObjectEx::AssignError(const TQzObjectEx* ASource, const TQzObjectEx* ADest) {
    throw EConvertError(SAssignError,
                        {ASource == nullptr ? std::u16string_view(u"nil") : ASource->ClassName(),
                         ADest == nullptr ? std::u16string_view(u"nil") : ADest->ClassName()});
}

void TQzObjectEx::DefineProperties(TFiler&) {}

UnicodeString TQzObjectEx::GetNamePath() const {
    UnicodeString Path;
    TObject* Owner = GetOwner();
    if (const auto* Same = dynamic_cast<const TQzObjectEx*>(Owner))
        Path = Same->GetNamePath();
    else if (const auto* Persistent = dynamic_cast<const TPersistent*>(Owner))
        Path = Persistent->GetNamePath();
    return Path.empty() ? UnicodeString(ClassName()) : Path + u'.' + ClassName();
}

} // namespace qz
