// TQzKeyDescStringList: a component that pairs keys with descriptions, for lists to choose from.
//
//     List->AddItem(u"de", u"German");
//     List->AddItem(49, u"Germany");
//     List->GetDescription(u"de");                // German
//     List->GetIntKeyValue(u"Germany");           // 49
//
// Keys and descriptions are found as TStrings::IndexOf finds lines, without regard to case; of equal ones the
// first. A component belongs to one thread.
#pragma once

#include <qz/runtime/components/Component.h>
#include <qz/runtime/lists/Strings.h>
#include <qz/runtime/values/Variant.h>

namespace qz {

class QZ_API TQzKeyDescStringList : public TComponent {
    QZ_CLASS(TQzKeyDescStringList, TComponent)

public:
    // Two lists of the same length, both owned. Who changes one of them directly keeps the pairs together
    // himself.
    TStrings* KeyValues() const noexcept { return FKeyValues.get(); }
    TStrings* Descriptions() const noexcept { return FDescriptions.get(); }
    // Assign to that list.
    void SetKeyValues(TStrings* AValue);
    void SetDescriptions(TStrings* AValue);

    void AddItem(const TStringArg& AKey, const TStringArg& ADescription);
    // With the number in decimal as the key.
    void AddItem(std::int32_t AKey, const TStringArg& ADescription);
    // With the index of the pair as the key.
    void AddItem(const TStringArg& ADescription);
    void AddItems(const TStrings& AStrings);
    void Clear();
    // Takes both lists of another TQzKeyDescStringList, or the lines of a TStrings as descriptions with the
    // keys "0", "1" and so on. Raises EConvertError for anything else.
    void Assign(TPersistent* ASource) override;

    // The description of a key, which is looked for in its text form; empty when there is none.
    UnicodeString GetDescription(const Variant& AKey) const;
    // The key of a description; empty, or -1, when there is none. A key that is no number gives -1 too.
    UnicodeString GetStrKeyValue(const TStringArg& ADescription) const;
    std::int32_t GetIntKeyValue(const TStringArg& ADescription) const;

protected:
    explicit TQzKeyDescStringList(TComponent* AOwner);
    ~TQzKeyDescStringList() override;

private:
    TOwned<TStrings> FKeyValues;
    TOwned<TStrings> FDescriptions;
};

} // namespace qz
