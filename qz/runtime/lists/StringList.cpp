#include <qz/runtime/lists/StringList.h>

#include <algorithm>
#include <exception>
#include <numeric>

#include <qz/runtime/base/StringUtils.h>
#include <qz/runtime/objects/Describe.h>
#include <qz/runtime/objects/Exceptions.h>
#include <qz/runtime/objects/TypeNames.h>

namespace qz {
namespace {

using TView = std::u16string_view;

int LocaleStr(TView ALeft, TView ARight) {
    return AnsiCompareStr(ALeft, ARight);
}
int LocaleText(TView ALeft, TView ARight) {
    return AnsiCompareText(ALeft, ARight);
}

} // namespace

QZ_REGISTER_TYPES(TStringList);

constinit const TClassRec TStringList::ClassRec =
    DescribeClass<TStringList>(u"TStringList", {.Unit = u"System"});

TStringList::~TStringList() {
    try {
        EndObjects(std::exchange(FItems, {}));
    } catch (...) { // NOLINT(bugprone-empty-catch): a destructor must not raise
    }
}

TStringList::TCompare TStringList::ComparerOf(bool ACaseSensitive, bool AUseLocale) noexcept {
    if (AUseLocale)
        return ACaseSensitive ? &LocaleStr : &LocaleText;
    return ACaseSensitive ? TCompare(&detail::CompareUnits) : TCompare(&detail::CompareUnitsNoCase);
}

void TStringList::SetCapacity(int ACapacity) {
    if (ACapacity < Count())
        IndexError(ACapacity);
    if (ACapacity < Capacity())
        FItems.shrink_to_fit();
    FItems.reserve(static_cast<std::size_t>(ACapacity));
}

int TStringList::IndexOf(const TStringArg& AText) const {
    if (!FSorted)
        return Inherited::IndexOf(AText);
    int Result = 0;
    return Find(AText, Result) ? Result : -1;
}

// Each step compares once, and an equal line on the way saves the comparison at the end.
bool TStringList::Find(const TStringArg& AText, int& AIndex) const {
    const TView Text = AText;
    const TItem* First = FItems.data();
    bool Found = false;
    for (std::size_t Length = FItems.size(); Length > 0;) {
        const std::size_t Half = Length / 2;
        const int Order = FCompare(First[Half].Text, Text);
        if (Order < 0) {
            First += Half + 1;
            Length -= Half + 1;
        } else {
            Found = Found || Order == 0;
            Length = Half;
        }
    }
    AIndex = static_cast<int>(First - FItems.data());
    return Found;
}

void TStringList::CheckUnsorted() const {
    if (FSorted)
        throw EStringListError(SSortedListError);
}

void TStringList::SetString(int AIndex, const UnicodeString& AText) {
    CheckUnsorted();
    const std::size_t Index = Checked(AIndex, Count());
    Changing();
    FItems[Index].Text = AText;
    Changed();
}

void TStringList::SetObject(int AIndex, TObject* AObject) {
    const std::size_t Index = Checked(AIndex, Count());
    if (FItems[Index].Object == AObject)
        return;
    Changing();
    std::vector<TItem> Old{{{}, FItems[Index].Object}};
    FItems[Index].Object = AObject;
    ChangedWithout(std::move(Old));
}

void TStringList::InsertObject(int AIndex, const UnicodeString& AText, TObject* AObject) {
    CheckUnsorted();
    Checked(AIndex, Count() + 1);
    Put(AIndex, AText, AObject);
}

void TStringList::Put(int AIndex, const UnicodeString& AText, TObject* AObject) {
    Changing();
    FItems.insert(FItems.begin() + AIndex, TItem{AText, AObject});
    Changed();
}

int TStringList::AddObject(const UnicodeString& AText, TObject* AObject) {
    int Result = Count();
    if (FSorted && Find(AText, Result)) {
        if (FDuplicates == dupIgnore)
            return Result;
        if (FDuplicates == dupError)
            throw EStringListError(SDuplicateString);
    }
    Put(Result, AText, AObject);
    return Result;
}

void TStringList::Exchange(int AIndex1, int AIndex2) {
    CheckUnsorted();
    const std::size_t Index1 = Checked(AIndex1, Count());
    const std::size_t Index2 = Checked(AIndex2, Count());
    Changing();
    std::swap(FItems[Index1], FItems[Index2]);
    Changed();
}

void TStringList::Move(int ACurIndex, int ANewIndex) {
    CheckUnsorted();
    Checked(ACurIndex, Count());
    Checked(ANewIndex, Count());
    Changing();
    detail::MoveItem(FItems, ACurIndex, ANewIndex);
    Changed();
}

void TStringList::Delete(int AIndex) {
    Checked(AIndex, Count());
    Changing();
    const auto Place = FItems.begin() + AIndex;
    std::vector<TItem> Old;
    Old.push_back(std::move(*Place));
    FItems.erase(Place);
    ChangedWithout(std::move(Old));
}

void TStringList::Clear() {
    if (FItems.empty())
        return;
    Changing();
    ChangedWithout(std::exchange(FItems, {}));
}

// The items have left the list, so their objects are freed here even if the notification fails.
void TStringList::ChangedWithout(std::vector<TItem> AItems) {
    try {
        Changed();
    } catch (...) {
        try {
            EndObjects(std::move(AItems));
        } catch (...) { // NOLINT(bugprone-empty-catch): another exception is on its way already
        }
        throw;
    }
    EndObjects(std::move(AItems));
}

void TStringList::EndObjects(std::vector<TItem> AItems) const {
    if (!FOwnsObjects)
        return;
    std::exception_ptr First;
    for (; !AItems.empty(); AItems.pop_back()) {
        try {
            if (AItems.back().Object != nullptr)
                AItems.back().Object->Free();
        } catch (...) {
            if (First == nullptr)
                First = std::current_exception();
        }
    }
    if (First != nullptr)
        std::rethrow_exception(First);
}

void TStringList::Sort() {
    Changing();
    detail::MergeSort(FItems,
                      [this](const TItem& A, const TItem& B) { return FCompare(A.Text, B.Text) < 0; });
    Changed();
}

// The places are sorted while the lines stay where ACompare looks for them.
void TStringList::CustomSort(const TSortCompare& ACompare) {
    CheckUnsorted();
    Changing();
    std::vector<int> Order(FItems.size());
    std::iota(Order.begin(), Order.end(), 0);
    detail::MergeSort(Order, [&](int A, int B) { return ACompare(*this, A, B) < 0; });
    std::vector<TItem> Items;
    Items.reserve(Order.size());
    for (const int Place : Order)
        Items.push_back(std::move(FItems[static_cast<std::size_t>(Place)]));
    FItems = std::move(Items);
    Changed();
}

void TStringList::SetSorted(bool AValue) {
    if (AValue && !FSorted)
        Sort();
    FSorted = AValue;
}

// The lines come in the order of the source, so that they need not be sorted again.
void TStringList::Assign(TPersistent* ASource) {
    const auto* Source = dynamic_cast<const TStringList*>(ASource);
    if (Source == nullptr || Source == this)
        return Inherited::Assign(ASource);
    FSorted = false;
    FDuplicates = Source->FDuplicates;
    SetCaseSensitive(Source->FCaseSensitive);
    Inherited::Assign(ASource);
    FSorted = Source->FSorted;
}

void TStringList::SetCaseSensitive(bool AValue) {
    FCaseSensitive = AValue;
    ChangeOrder();
}

void TStringList::SetUseLocale(bool AValue) {
    Inherited::SetUseLocale(AValue);
    ChangeOrder();
}

void TStringList::ChangeOrder() {
    const TCompare Old = std::exchange(FCompare, ComparerOf(FCaseSensitive, UseLocale()));
    if (FSorted && Old != FCompare)
        Sort();
}

void TStringList::SetUpdateState(bool AUpdating) {
    if (AUpdating)
        Changing();
    else
        Changed();
}

void TStringList::Changing() {
    if (UpdateCount() == 0 && FOnChanging)
        FOnChanging(this);
}

void TStringList::Changed() {
    if (UpdateCount() == 0 && FOnChange)
        FOnChange(this);
}

} // namespace qz
