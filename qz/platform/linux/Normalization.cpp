#include <qz/platform/Normalization.h>

#include <cerrno>
#include <climits>

#include <unicode/utf16.h>

#include <qz/platform/linux/Icu.h>

namespace qz::platform {

namespace {

// ICU takes lone surrogates as they are; Windows refuses them.
bool IsWellFormed(std::u16string_view AText) {
    for (std::size_t I = 0; I < AText.size(); ++I) {
        if (!U16_IS_SURROGATE(AText[I]))
            continue;
        if (!U16_IS_LEAD(AText[I]) || I + 1 == AText.size() || !U16_IS_TRAIL(AText[I + 1]))
            return false;
        ++I;
    }
    return true;
}

} // namespace

TNormalizer PrepareNormalizer() {
    return TNormalizer::Ready;
}

TResult<std::u16string> NormalizeText(int AForm, std::u16string_view AText) {
    UErrorCode Status = U_ZERO_ERROR;
    const UNormalizer2* const Normalizer = detail::IcuNormalizer(AForm);
    if (AText.empty() || AText.size() > INT_MAX || Normalizer == nullptr || !IsWellFormed(AText))
        return TError(EINVAL);
    const auto Length = static_cast<std::int32_t>(AText.size());
    std::u16string Result(AText.size() * 2 + 16, u'\0');
    for (;;) {
        Status = U_ZERO_ERROR;
        const std::int32_t Needed = unorm2_normalize(Normalizer, AText.data(), Length, Result.data(),
                                                     static_cast<std::int32_t>(Result.size()), &Status);
        if (U_FAILURE(Status) && Status != U_BUFFER_OVERFLOW_ERROR)
            return TError(Status == U_MEMORY_ALLOCATION_ERROR ? ENOMEM : EINVAL);
        Result.resize(static_cast<std::size_t>(Needed));
        if (Status != U_BUFFER_OVERFLOW_ERROR)
            return Result;
    }
}

} // namespace qz::platform
