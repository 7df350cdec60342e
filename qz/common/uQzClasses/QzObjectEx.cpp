#include <qz/common/uQzClasses/QzObjectEx.h>

#include <algorithm>
#include <optional>

#include <qz/runtime/objects/Describe.h>
#include <qz/runtime/objects/Exceptions.h>
#include <qz/runtime/objects/Persistent.h>
#include <qz/runtime/objects/TypeNames.h>

namespace qz {

namespace {

TQzObject* MakeObjectEx() {
    return TQzObjectEx::Create();
}

constexpr TMakerEntry cObjectExMakers[] = {Maker<TQzObject::TVirtualCreate, &MakeObjectEx>()};

// An interface of the object itself, not counted: a count might decide, or end, the life of the object.
template <class I> I* Offered(TObject* AObject) noexcept {
    return AObject == nullptr ? nullptr : static_cast<I*>(AObject->FindInterface(I::IID));
}

} // namespace

QZ_REGISTER_TYPES(TQzObjectEx);

constinit const TClassRec TQzObjectEx::ClassRec = DescribeClass<TQzObjectEx>(
    u"TQzObjectEx",
    {.Unit = u"uQzClasses",
     .Interfaces = Interfaces<TQzObjectEx, IQzObjectFreeNotificationEvent, IQzObjectEx>(),
     .Makers = cObjectExMakers});

// Links that are there without BeforeDestruction: the construction failed.
TQzObjectEx::~TQzObjectEx() {
    while (!FFreeNotifies.empty())
        DropLast();
}

void TQzObjectEx::OnObjectDestroyed(TObject*) {}

bool TQzObjectEx::AddNotification(TObject* AObject) {
    Assert(AObject != nullptr);
    if (std::find(FFreeNotifies.begin(), FFreeNotifies.end(), AObject) != FFreeNotifies.end())
        return false;
    FFreeNotifies.push_back(AObject);
    return true;
}

// A link is on both sides or on none.
void TQzObjectEx::FreeNotification(TQzObjectEx* AObject) {
    if (!AddNotification(AObject))
        return;
    try {
        AObject->FreeNotification(this);
    } catch (...) {
        RemoveNotification(AObject);
        throw;
    }
}

void TQzObjectEx::FreeNotificationEx(IQzObjectFreeNotificationEvent* AObject) {
    Assert(AObject != nullptr);
    TObject* Other = AObject->Implementor();
    if (auto* Same = dynamic_cast<TQzObjectEx*>(Other)) {
        FreeNotification(Same);
        return;
    }
    if (!AddNotification(Other))
        return;
    try {
        if (auto* Linked = Offered<IQzObjectEx>(Other))
            Linked->FreeNotificationEx(this);
    } catch (...) {
        RemoveNotification(Other);
        throw;
    }
}

// Most often the last one goes.
void TQzObjectEx::RemoveNotification(TObject* AObject) {
    const auto Found = std::find(FFreeNotifies.rbegin(), FFreeNotifies.rend(), AObject);
    if (Found != FFreeNotifies.rend())
        FFreeNotifies.erase(std::next(Found).base());
}

void TQzObjectEx::RemoveFreeNotification(TQzObjectEx* AObject) {
    Assert(AObject != nullptr);
    RemoveNotification(AObject);
    AObject->RemoveNotification(this);
}

void TQzObjectEx::RemoveFreeNotificationEx(IQzObject* AObject) {
    Assert(AObject != nullptr);
    TObject* Other = AObject->Implementor();
    RemoveNotification(Other);
    if (auto* Linked = Offered<IQzObjectEx>(Other))
        Linked->RemoveNotification(this);
}

// Notifies the last of the linked objects and removes the link. The reference keeps it alive, and the policy
// keeps the reference from destroying an unreferenced object. A referenced object gets its policy back first,
// since its last other reference may have been released meanwhile.
void TQzObjectEx::NotifyLast() {
    TObject* Last = FFreeNotifies.back();
    std::optional<TQzPolicyHold> Hold(Last);
    auto Listener = AsInterface<IQzObjectFreeNotificationEvent>(Last);
    if (Listener == nullptr) {
        RemoveNotification(Last);
        detail::RaiseAssertion(u"Assertion failure");
    }
    Listener->OnObjectDestroyed(this);
    RemoveFreeNotificationEx(Listener);
    if (Hold->WasReferenced())
        Hold.reset();
    Listener.Clear();
}

// The same where an exception can go nowhere, and for an object of which only this part is left.
void TQzObjectEx::DropLast() noexcept {
    TObject* Last = FFreeNotifies.back();
    FFreeNotifies.pop_back();
    if (auto* Linked = Offered<IQzObjectEx>(Last))
        Linked->RemoveNotification(this);
    try {
        const TQzPolicyHold Hold(Last);
        if (const auto Listener = AsInterface<IQzObjectFreeNotificationEvent>(Last))
            Listener->OnObjectDestroyed(this);
    } catch (...) { // NOLINT(bugprone-empty-catch): no caller is left
    }
}

void TQzObjectEx::BeforeDestruction() {
    TQzObject::BeforeDestruction();
    while (!FFreeNotifies.empty())
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
