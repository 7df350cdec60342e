#include <qz/runtime/values/VarTypes.h>

#include <algorithm>

#include <qz/runtime/text/NumberText.h>

namespace qz {
namespace {

struct TNamedType {
    TVarType Type;
    std::u16string_view Name;
};

constexpr TNamedType cNames[] = {
    {varEmpty, u"Empty"},       {varNull, u"Null"},       {varSmallint, u"Smallint"},
    {varInteger, u"Integer"},   {varSingle, u"Single"},   {varDouble, u"Double"},
    {varCurrency, u"Currency"}, {varDate, u"Date"},       {varOleStr, u"OleStr"},
    {varDispatch, u"Dispatch"}, {varError, u"Error"},     {varBoolean, u"Boolean"},
    {varVariant, u"Variant"},   {varUnknown, u"Unknown"}, {varDecimal, u"Decimal"},
    {varShortInt, u"ShortInt"}, {varByte, u"Byte"},       {varWord, u"Word"},
    {varLongWord, u"LongWord"}, {varInt64, u"Int64"},     {varUInt64, u"UInt64"},
    {varRecord, u"Record"},     {varStrArg, u"StrArg"},   {varObject, u"Object"},
    {varString, u"String"},     {varAny, u"Any"},         {varUString, u"UString"},
};

} // namespace

UnicodeString VarTypeAsText(TVarType AType) {
    UnicodeString Result;
    if ((AType & varByRef) != 0)
        Result += u"ByRef ";
    if ((AType & varArray) != 0)
        Result += u"Array ";
    const auto* const Found =
        std::ranges::find(cNames, static_cast<TVarType>(AType & varTypeMask), &TNamedType::Type);
    return Found != std::end(cNames) ? Result += Found->Name : Result += IntToHex(AType & varTypeMask, 4);
}

} // namespace qz
