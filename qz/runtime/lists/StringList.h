// TStringList: lines of text in memory, sorted if wanted.
//
//     TStringList Names;
//     Names.SetDuplicates(dupIgnore);
//     Names.SetSorted(true);
//     Names.Add(u"Zoe");
//     Names.Add(u"Adam");                     // Names[0]
//     int Place;
//     if (Names.Find(u"ZOE", Place)) ...      // lines compare without regard to case
//
// A list belongs to one thread at a time.
#pragma once

#include <concepts>
#include <functional>
#include <vector>

#include <qz/runtime/lists/Strings.h>

namespace qz {

class QZ_API TStringList : public TStrings {
    QZ_CLASS(TStringList, TStrings)

public:
    // Negative, zero or positive, for the lines at two places of the list.
    using TSortCompare = std::function<int(const TStringList& AList, int AIndex1, int AIndex2)>;

    TStringList() = default;
    // Takes a bool alone, so that no pointer becomes one.
    explicit TStringList(std::same_as<bool> auto AOwnsObjects) : FOwnsObjects(AOwnsObjects) {}
    TStringList(const TStringList&) = delete;
    TStringList& operator=(const TStringList&) = delete;
    ~TStringList() override;

    // As TStrings does; of a TStringList also its order, the rule for duplicates and the case rule.
    void Assign(TPersistent* ASource) override;

    int Count() const noexcept override { return static_cast<int>(FItems.size()); }
    UnicodeString Strings(int AIndex) const override { return FItems[Checked(AIndex, Count())].Text; }
    TObject* Objects(int AIndex) const override { return FItems[Checked(AIndex, Count())].Object; }
    int Capacity() const noexcept { return static_cast<int>(FItems.capacity()); }
    // At least the count; a lower one than now gives memory back.
    void SetCapacity(int ACapacity);
    // In a sorted list by Find.
    int IndexOf(const TStringArg& AText) const override;
    // Looks in a sorted list: AIndex becomes the first equal line, or the place where the text would stand.
    bool Find(const TStringArg& AText, int& AIndex) const;

    // In a sorted list these five raise EStringListError, "Operation not allowed on sorted list".
    void SetString(int AIndex, const UnicodeString& AText) override;
    void InsertObject(int AIndex, const UnicodeString& AText, TObject* AObject) override;
    void Exchange(int AIndex1, int AIndex2) override;
    void Move(int ACurIndex, int ANewIndex) override;
    void CustomSort(const TSortCompare& ACompare);

    // Frees the previous object if it is owned.
    void SetObject(int AIndex, TObject* AObject) override;
    // In a sorted list the place is given by the order. A text that is there already is then treated as
    // Duplicates says: dupIgnore gives its place and takes nothing, dupError raises EStringListError, "String
    // list does not allow duplicates".
    int AddObject(const UnicodeString& AText, TObject* AObject) override;
    // Frees owned objects, from the last to the first, after their lines are removed. The first exception of
    // one goes to the caller, after the others' end, unless OnChange raised one before; the destructor drops
    // them all.
    void Delete(int AIndex) override;
    void Clear() override;
    // Sorts once; equal lines keep their order.
    void Sort();

    // A list that becomes sorted is put in order at once and stays so.
    bool Sorted() const noexcept { return FSorted; }
    void SetSorted(bool AValue);
    TDuplicates Duplicates() const noexcept { return FDuplicates; } // dupIgnore at first
    void SetDuplicates(TDuplicates AValue) noexcept { FDuplicates = AValue; }
    // Each change of the order's rules puts a sorted list in order again.
    bool CaseSensitive() const noexcept { return FCaseSensitive; }
    void SetCaseSensitive(bool AValue);
    void SetUseLocale(bool AValue) override;
    bool OwnsObjects() const noexcept { return FOwnsObjects; }
    void SetOwnsObjects(bool AValue) noexcept { FOwnsObjects = AValue; }
    // Called before and after each change, or once around all changes between BeginUpdate and EndUpdate. A
    // procedure does not change the list.
    void SetOnChanging(TNotifyEvent AEvent) { FOnChanging = std::move(AEvent); }
    void SetOnChange(TNotifyEvent AEvent) { FOnChange = std::move(AEvent); }

protected:
    int CompareStrings(std::u16string_view ALeft, std::u16string_view ARight) const final {
        return FCompare(ALeft, ARight);
    }
    void SetUpdateState(bool AUpdating) override;
    virtual void Changing();
    virtual void Changed();

private:
    struct TItem {
        UnicodeString Text;
        TObject* Object;
    };
    using TCompare = int (*)(std::u16string_view, std::u16string_view);

    static std::size_t Checked(int AIndex, int ALimit) {
        if (AIndex < 0 || AIndex >= ALimit) [[unlikely]]
            IndexError(AIndex);
        return static_cast<std::size_t>(AIndex);
    }
    static TCompare ComparerOf(bool ACaseSensitive, bool AUseLocale) noexcept;
    void ChangeOrder();
    void CheckUnsorted() const;
    void Put(int AIndex, const UnicodeString& AText, TObject* AObject);
    void EndObjects(std::vector<TItem> AItems) const;
    void ChangedWithout(std::vector<TItem> AItems);

    std::vector<TItem> FItems;
    TCompare FCompare = ComparerOf(false, true);
    TNotifyEvent FOnChanging;
    TNotifyEvent FOnChange;
    TDuplicates FDuplicates = dupIgnore;
    bool FSorted = false;
    bool FCaseSensitive = false;
    bool FOwnsObjects = false;
};

} // namespace qz
