#include <qz/common/uQzTypes/KindConversions.h>

#include <qz/runtime/base/StringUtils.h>
#include <qz/runtime/text/NumberText.h>

namespace qz {

namespace {

constexpr TTextConstant SAny = u"any";
constexpr TTextConstant SByte = u"byte";
constexpr TTextConstant SShort = u"short";
constexpr TTextConstant SInt = u"int";
constexpr TTextConstant SLong = u"long";
constexpr TTextConstant SUnsignedByte = u"unsignedByte";
constexpr TTextConstant SUnsignedShort = u"unsignedShort";
constexpr TTextConstant SUnsignedInt = u"unsignedInt";
constexpr TTextConstant SUnsignedLong = u"unsignedLong";
constexpr TTextConstant SFloat = u"float";
constexpr TTextConstant SDouble = u"double";
constexpr TTextConstant SDecmimal = u"decmimal";
constexpr TTextConstant SString = u"string";
constexpr TTextConstant SBase64Binary = u"base64Binary";
constexpr TTextConstant SBoolean = u"boolean";
constexpr TTextConstant SDate = u"date";
constexpr TTextConstant STime = u"time";
constexpr TTextConstant SDateTime = u"dateTime";

template <const auto& Constant> UnicodeString Share() noexcept {
    return Constant;
}

struct TSchemaEntry {
    UnicodeString (*Name)() noexcept;
    TQzSchemaDataType Type;
};

// By TSchemaName, without the first.
constexpr TSchemaEntry cSchemaEntries[] = {
    {&Share<SAny>, xsdComplexType},
    {&Share<SByte>, xsdByte},
    {&Share<SShort>, xsdShort},
    {&Share<SInt>, xsdInt},
    {&Share<SLong>, xsdLong},
    {&Share<SUnsignedByte>, xsdUnsignedByte},
    {&Share<SUnsignedShort>, xsdUnsignedShort},
    {&Share<SUnsignedInt>, xsdUnsignedInt},
    {&Share<SUnsignedLong>, xsdUnsignedLong},
    {&Share<SFloat>, xsdFloat},
    {&Share<SDouble>, xsdDouble},
    {&Share<SDecmimal>, xsdDecimal},
    {&Share<SString>, xsdString},
    {&Share<SBase64Binary>, xsdBase64Binary},
    {&Share<SBoolean>, xsdBoolean},
    {&Share<SDate>, xsdDate},
    {&Share<STime>, xsdTime},
    {&Share<SDateTime>, xsdDateTime},
};

const TSchemaEntry& EntryOf(detail::TSchemaName AName) noexcept {
    return cSchemaEntries[static_cast<std::size_t>(AName) - 1];
}

void Store(PQzSchemaDataType ATarget, TQzSchemaDataType AType) noexcept {
    if (ATarget != nullptr)
        *ATarget = AType;
}

} // namespace

void TQzKindConversions::RaiseUnknown(TTypeKind AKind) {
    detail::RaiseAssertion(u"The type " + IntToStr(static_cast<int>(AKind)) +
                           u" cannot be converted to a TQzTypeKind!");
}

void TQzKindConversions::RaiseNoVarType() {
    throw Exception(u"The given datatype cannot be converted to a Variant Type!");
}

UnicodeString TQzKindConversions::ToSchemaType(TVarType AType, PQzSchemaDataType ASchemaType) {
    const auto Code = static_cast<TVarType>(AType & ~varArray);
    const detail::TSchemaName Name = detail::RowOf(Code).Schema;
    if (Name == detail::TSchemaName::None)
        throw Exception(u"The given TVarType \"%d\" could not be converted to a valid SchemaType!", {Code});
    const TSchemaEntry& Entry = EntryOf(Name);
    if (Code == AType) {
        Store(ASchemaType, Entry.Type);
        return Entry.Name();
    }
    Store(ASchemaType, xsdArrayOfSimpleType);
    // The names are of ASCII letters, whose upper case no locale may change.
    const UnicodeString Element = Entry.Name();
    UnicodeString Result = u"ArrayOf";
    Result += static_cast<char16_t>(Element[0] - u'a' + u'A');
    Result += Element.View().substr(1);
    return Result;
}

UnicodeString TQzKindConversions::ToSchemaType(TQzTypeKind AKind, PQzSchemaDataType ASchemaType) {
    const TSchemaEntry& Entry = EntryOf(detail::RowOf(AKind).Schema);
    Store(ASchemaType, Entry.Type);
    return Entry.Name();
}

TQzDataSerializationFormatType GetDataSerializationFormat(const TStringArg& AText) {
    for (std::size_t I = 0; I < std::size(QzDataSerializationFormatType); ++I) {
        if (SameText(AText, QzDataSerializationFormatType[I]))
            return static_cast<TQzDataSerializationFormatType>(I);
    }
    throw Exception(u"The format %s is not supported!!", {AText.View()});
}

} // namespace qz
