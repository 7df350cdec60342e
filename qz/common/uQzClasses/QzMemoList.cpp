#include <qz/common/uQzClasses/QzMemoList.h>

#include <qz/runtime/base/StringUtils.h>
#include <qz/runtime/components/DescribeComponent.h>
#include <qz/runtime/lists/StringList.h>
#include <qz/runtime/objects/Exceptions.h>
#include <qz/runtime/objects/TypeNames.h>
#include <qz/runtime/values/BasicTypes.h>

namespace qz {
namespace {

constexpr std::u16string_view cUnit = u"uQzClasses";

constexpr TPropInfo cItemProps[] = {
    Property<&TQzMemoListItem::Code, &TQzMemoListItem::SetCode>(u"Code"),
    Property<&TQzMemoListItem::Memo, &TQzMemoListItem::SetMemo>(u"Memo"),
};
constexpr TPropInfo cListProps[] = {Property<&TQzMemoList::Items, &TQzMemoList::SetItems>(u"Items")};

} // namespace

QZ_REGISTER_TYPES(TQzMemoListItem, TQzMemoListItems, TQzMemoList);

constinit const TClassRec TQzMemoListItem::ClassRec = DescribeClass<TQzMemoListItem>(
    u"TQzMemoListItem",
    {.Unit = cUnit, .Properties = cItemProps, .Makers = CollectionItemMaker<TQzMemoListItem>()});
constinit const TClassRec TQzMemoListItems::ClassRec =
    DescribeClass<TQzMemoListItems>(u"TQzMemoListItems", {.Unit = cUnit});
constinit const TClassRec TQzMemoList::ClassRec =
    DescribeComponent<TQzMemoList>(u"TQzMemoList", {.Unit = cUnit, .Properties = cListProps});

TQzMemoListItem::TQzMemoListItem(TCollection* ACollection)
    : TCollectionItem(ACollection),
      FMemo(TStringList::Create()) {}

TQzMemoListItem::~TQzMemoListItem() = default;

// NOLINTNEXTLINE(readability-make-member-function-const): the lines are part of the item
void TQzMemoListItem::SetMemo(TStrings* AValue) {
    FMemo->Assign(AValue);
}

void TQzMemoListItem::AssignTo(TPersistent* ADest) {
    auto* Target = dynamic_cast<TQzMemoListItem*>(ADest);
    if (Target == nullptr)
        return Inherited::AssignTo(ADest);
    Target->SetMemo(FMemo.get());
    Target->SetCode(FCode);
}

TQzMemoListItems::TQzMemoListItems(TQzMemoList* AOwner)
    : TCollection(ClassOf<TQzMemoListItem>()),
      FOwner(AOwner) {}

TPersistent* TQzMemoListItems::GetOwner() const {
    return FOwner;
}

int TQzMemoListItems::IndexOf(const TStringArg& ACode) const noexcept {
    int Result = 0;
    for (const TCollectionItem* Each : *this) {
        if (SameText(static_cast<const TQzMemoListItem*>(Each)->Code(), ACode))
            return Result;
        ++Result;
    }
    return -1;
}

int TQzMemoListItems::IndexOf(const TQzMemoListItem* AItem) const noexcept {
    return AItem != nullptr && AItem->Collection() == this ? AItem->Index() : -1;
}

TQzMemoListItem* TQzMemoListItems::Find(const TStringArg& ACode) const noexcept {
    const int Index = IndexOf(ACode);
    return Index < 0 ? nullptr : GetItem(Index);
}

TQzMemoListItem* TQzMemoListItems::Add(const TStringArg& ACode, TStrings* AMemo) {
    if (IndexOf(ACode) >= 0)
        throw EListError(SMemoCodeExists, {ACode.View()});
    auto* Result = static_cast<TQzMemoListItem*>(Add());
    Result->SetCode(ACode.ToString());
    if (AMemo != nullptr)
        Result->SetMemo(AMemo);
    return Result;
}

void TQzMemoListItems::Remove(const TStringArg& ACode) {
    if (const int Index = IndexOf(ACode); Index >= 0)
        Delete(Index);
}

void TQzMemoListItems::Remove(const TQzMemoListItem* AItem) {
    if (const int Index = IndexOf(AItem); Index >= 0)
        Delete(Index);
}

void TQzMemoListItems::AssignTo(TPersistent* ADest) {
    if (auto* Target = dynamic_cast<TQzMemoListItems*>(ADest))
        Target->Assign(this); // which copies item by item
    else
        Inherited::AssignTo(ADest);
}

TQzMemoList::TQzMemoList(TComponent* AOwner) : TComponent(AOwner), FItems(TQzMemoListItems::Create(this)) {}

TQzMemoList::~TQzMemoList() = default;

// NOLINTNEXTLINE(readability-make-member-function-const): the items are part of the component
void TQzMemoList::SetItems(TQzMemoListItems* AValue) {
    FItems->Assign(AValue);
}

TStrings* TQzMemoList::MemoByCode(const TStringArg& ACode) const {
    if (const TQzMemoListItem* Item = FItems->Find(ACode))
        return Item->Memo();
    throw Exception(SMemoCodeUnknown, {ACode.View()});
}

} // namespace qz
