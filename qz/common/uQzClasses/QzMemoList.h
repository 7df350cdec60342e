// TQzMemoList: a component with multi-line texts, each under its own code.
//
//     List->Items()->Add(u"greeting", &Lines);
//     List->MemoByCode(u"Greeting")->Text();
//
// Codes are compared without regard to the case of A to Z. A list and its items belong to one thread.
#pragma once

#include <qz/runtime/components/Collection.h>
#include <qz/runtime/components/Component.h>
#include <qz/runtime/lists/Strings.h>

namespace qz {

class TQzMemoList;

inline constexpr TTextConstant SMemoCodeExists = u"There already is a memo with code %s!";
inline constexpr TTextConstant SMemoCodeUnknown = u"There is no MemoItem with the code %s!";

// One text; published are Code and Memo.
class QZ_API TQzMemoListItem : public TCollectionItem {
    QZ_CLASS(TQzMemoListItem, TCollectionItem)

public:
    explicit TQzMemoListItem(TCollection* ACollection);
    ~TQzMemoListItem() override;

    const UnicodeString& Code() const noexcept { return FCode; }
    // Does not look whether another item has the code.
    void SetCode(const UnicodeString& AValue) { FCode = AValue; }
    // Owned by the item.
    TStrings* Memo() const noexcept { return FMemo.get(); }
    // Assigns.
    void SetMemo(TStrings* AValue);

protected:
    void AssignTo(TPersistent* ADest) override;

private:
    TOwned<TStrings> FMemo;
    UnicodeString FCode;
};

class QZ_API TQzMemoListItems : public TCollection {
    QZ_CLASS(TQzMemoListItems, TCollection)

public:
    using TCollection::Add;

    // AOwner may be null.
    explicit TQzMemoListItems(TQzMemoList* AOwner);

    // By index; one out of range raises EListError. SetItem assigns.
    const UnicodeString& Code(int AIndex) const { return GetCode(AIndex); }
    const UnicodeString& GetCode(int AIndex) const { return GetItem(AIndex)->Code(); }
    // NOLINTNEXTLINE(readability-make-member-function-const): the items are part of the collection
    void SetCode(int AIndex, const UnicodeString& AValue) { GetItem(AIndex)->SetCode(AValue); }
    TQzMemoListItem* Item(int AIndex) const { return GetItem(AIndex); }
    TQzMemoListItem* GetItem(int AIndex) const { return static_cast<TQzMemoListItem*>(Items(AIndex)); }
    void SetItem(int AIndex, TQzMemoListItem* AItem) { TCollection::SetItem(AIndex, AItem); }

    // The first item with that code, or the place of that very item; -1 or null for none.
    int IndexOf(const TStringArg& ACode) const noexcept;
    int IndexOf(const TQzMemoListItem* AItem) const noexcept;
    TQzMemoListItem* Find(const TStringArg& ACode) const noexcept;

    // A new item, with the lines of AMemo if given. Raises EListError, "There already is a memo with code
    // %s!".
    TQzMemoListItem* Add(const TStringArg& ACode, TStrings* AMemo = nullptr);
    // Frees the item. An unknown code or item is ignored; an index out of range raises EListError.
    void Remove(const TStringArg& ACode);
    void Remove(const TQzMemoListItem* AItem);
    void Remove(int AIndex) { Delete(AIndex); }

protected:
    TPersistent* GetOwner() const override;
    void AssignTo(TPersistent* ADest) override;

private:
    TQzMemoList* FOwner;
};

// The component; published is Items.
class QZ_API TQzMemoList : public TComponent {
    QZ_CLASS(TQzMemoList, TComponent)

public:
    TQzMemoListItems* Items() const noexcept { return FItems.get(); }
    // Assigns.
    void SetItems(TQzMemoListItems* AValue);
    // The lines of the item with that code. Raises Exception, "There is no MemoItem with the code %s!".
    TStrings* MemoByCode(const TStringArg& ACode) const;

protected:
    explicit TQzMemoList(TComponent* AOwner);
    ~TQzMemoList() override;

private:
    TOwned<TQzMemoListItems> FItems;
};

} // namespace qz
