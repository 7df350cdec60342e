#include <qz/common/uQzTypes/TextValues.h>

#include <qz/platform/Locale.h>
#include <qz/runtime/text/FloatText.h>

namespace qz {
namespace {

TFormatSettings OtherSeparators() {
    TFormatSettings Result;
    const bool HasPoint = platform::UserDecimalSeparator() == u'.';
    Result.DecimalSeparator = HasPoint ? u',' : u'.';
    Result.ThousandSeparator = HasPoint ? u'.' : u',';
    return Result;
}

} // namespace

bool QzStrToBool(const TStringArg& AText) noexcept {
    constexpr std::u16string_view cTrue = u"1TYty";
    const std::u16string_view Text = AText;
    return !Text.empty() && cTrue.find(Text.front()) != std::u16string_view::npos;
}

Extended QzStrToFloat(const TStringArg& AText) {
    double Result = 0;
    return TryStrToFloat(AText, Result) ? Result : StrToFloat(AText, OtherSeparators());
}

Extended QzStrToFloatDef(const TStringArg& AText, Extended ADefault) {
    double Result = 0;
    return QzTryStrToFloat(AText, Result) ? Extended(Result) : ADefault;
}

bool QzTryStrToFloat(const TStringArg& AText, double& AValue) {
    return TryStrToFloat(AText, AValue) || TryStrToFloat(AText, AValue, OtherSeparators());
}

} // namespace qz
