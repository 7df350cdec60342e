#include <qz/common/uQzClasses/QzKeyDescStringList.h>

#include <qz/runtime/components/DescribeComponent.h>
#include <qz/runtime/lists/StringList.h>
#include <qz/runtime/objects/TypeNames.h>
#include <qz/runtime/text/NumberText.h>

namespace qz {
namespace {

constexpr TPropInfo cKeyDescProps[] = {
    Property<&TQzKeyDescStringList::KeyValues, &TQzKeyDescStringList::SetKeyValues>(u"KeyValues"),
    Property<&TQzKeyDescStringList::Descriptions, &TQzKeyDescStringList::SetDescriptions>(u"Descriptions"),
};

// The line of ATo that stands where AFrom has the text; the lists may differ in length.
UnicodeString Partner(const TStrings& AFrom, const TStringArg& AText, const TStrings& ATo) {
    const int Index = AFrom.IndexOf(AText);
    return Index < 0 || Index >= ATo.Count() ? UnicodeString() : ATo.Strings(Index);
}

} // namespace

QZ_REGISTER_TYPES(TQzKeyDescStringList);

constinit const TClassRec TQzKeyDescStringList::ClassRec = DescribeComponent<TQzKeyDescStringList>(
    u"TQzKeyDescStringList", {.Unit = u"uQzClasses", .Properties = cKeyDescProps});

TQzKeyDescStringList::TQzKeyDescStringList(TComponent* AOwner)
    : TComponent(AOwner),
      FKeyValues(TStringList::Create()),
      FDescriptions(TStringList::Create()) {}

TQzKeyDescStringList::~TQzKeyDescStringList() = default;

// NOLINTNEXTLINE(readability-make-member-function-const): the lists are part of the component
void TQzKeyDescStringList::SetKeyValues(TStrings* AValue) {
    FKeyValues->Assign(AValue);
}

// NOLINTNEXTLINE(readability-make-member-function-const): the lists are part of the component
void TQzKeyDescStringList::SetDescriptions(TStrings* AValue) {
    FDescriptions->Assign(AValue);
}

// NOLINTNEXTLINE(readability-make-member-function-const): the lists are part of the component
void TQzKeyDescStringList::AddItem(const TStringArg& AKey, const TStringArg& ADescription) {
    FKeyValues->Add(AKey.ToString());
    FDescriptions->Add(ADescription.ToString());
}

void TQzKeyDescStringList::AddItem(std::int32_t AKey, const TStringArg& ADescription) {
    AddItem(IntToStr(AKey), ADescription);
}

void TQzKeyDescStringList::AddItem(const TStringArg& ADescription) {
    AddItem(FDescriptions->Count(), ADescription);
}

void TQzKeyDescStringList::AddItems(const TStrings& AStrings) {
    const int Last = AStrings.Count();
    for (int I = 0; I < Last; ++I)
        AddItem(AStrings.Strings(I));
}

// NOLINTNEXTLINE(readability-make-member-function-const): the lists are part of the component
void TQzKeyDescStringList::Clear() {
    FKeyValues->Clear();
    FDescriptions->Clear();
}

void TQzKeyDescStringList::Assign(TPersistent* ASource) {
    if (const auto* Other = dynamic_cast<const TQzKeyDescStringList*>(ASource)) {
        FKeyValues->Assign(Other->KeyValues());
        FDescriptions->Assign(Other->Descriptions());
    } else if (const auto* Lines = dynamic_cast<const TStrings*>(ASource)) {
        // Only the lines: the order of a sorted source would part later pairs. It may be one of the lists
        // here.
        TStringList Copy;
        Copy.AddStrings(*Lines);
        Clear();
        AddItems(Copy);
    } else {
        Inherited::Assign(ASource);
    }
}

UnicodeString TQzKeyDescStringList::GetDescription(const Variant& AKey) const {
    return Partner(*FKeyValues, VarToStr(AKey), *FDescriptions);
}

UnicodeString TQzKeyDescStringList::GetStrKeyValue(const TStringArg& ADescription) const {
    return Partner(*FDescriptions, ADescription, *FKeyValues);
}

std::int32_t TQzKeyDescStringList::GetIntKeyValue(const TStringArg& ADescription) const {
    return StrToIntDef(GetStrKeyValue(ADescription), -1);
}

} // namespace qz
