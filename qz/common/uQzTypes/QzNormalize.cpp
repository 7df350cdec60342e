#include <qz/common/uQzTypes/QzNormalize.h>

#include <optional>
#include <string>

#include <qz/platform/Normalization.h>
#include <qz/runtime/base/Utf.h>
#include <qz/runtime/objects/Exceptions.h>
#include <qz/runtime/text/CodePages.h>

namespace qz {
namespace {

void RequireNormalizer() {
    switch (platform::PrepareNormalizer()) {
    case platform::TNormalizer::Ready: return;
    case platform::TNormalizer::NoLibrary: throw Exception(u"Failed to load normaliz.dll!");
    case platform::TNormalizer::NoFunction:
        throw Exception(u"Failed to find the \"NormalizeString\" function!");
    }
}

bool IsCompatibleWith(char16_t AUnit, std::u16string_view AText) {
    const auto Plain = platform::NormalizeText(static_cast<int>(NormalizationKD), {&AUnit, 1});
    return Plain && *Plain == AText;
}

// What the system's code page gives for a character that no page has.
char DefaultByte() {
    constexpr char16_t cNothing = 0xFFFF;
    char Bytes[4] = {'?'};
    std::ignore = EncodeCodePage(cSystemCodePage, {&cNothing, 1}, Bytes, platform::TComposing::Plain);
    return Bytes[0];
}

// The one byte above 0 that the system's code page has for the unit, exactly or as its best fit.
std::optional<char16_t> SystemByte(char16_t AUnit) {
    char Byte = '\0';
    if (*EncodeCodePage(cSystemCodePage, {&AUnit, 1}, {&Byte, 1}, platform::TComposing::Plain) != 1 ||
        Byte == '\0')
        return std::nullopt;
    // The byte that stands for all that the code page lacks is the best fit of some marks too.
    if (Byte == DefaultByte() && !IsCompatibleWith(AUnit, u"?"))
        return std::nullopt;
    return static_cast<char16_t>(static_cast<unsigned char>(Byte));
}

std::u16string Normalized(std::u16string_view AText, TNorm_Form AForm) {
    platform::TResult<std::u16string> Normal = platform::NormalizeText(static_cast<int>(AForm), AText);
    if (!Normal)
        throw Exception(u"Failed to normalize the given value");
    std::u16string Result = std::move(*Normal);
    if (AForm == NormalizationD) {
        for (char16_t& Unit : Result) {
            if (Unit > 127)
                Unit = SystemByte(Unit).value_or(Unit);
        }
    }
    return Result;
}

} // namespace

WideString QzNormalizeString(const WideString& AValue, TNorm_Form AForm) {
    RequireNormalizer();
    return UnicodeString(Normalized(AValue, AForm));
}

WideString QzSimplifyString(const WideString& AValue) {
    RequireNormalizer();
    UnicodeString Result = AValue;
    char16_t* Units = Result.UniqueData();
    for (std::size_t I = 0; I < Result.size(); ++I) {
        if (Units[I] > 127 && !IsSurrogate(Units[I]))
            Units[I] = Normalized({Units + I, 1}, NormalizationD).front();
    }
    return Result;
}

} // namespace qz
