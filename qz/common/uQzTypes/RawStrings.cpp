#include <qz/common/uQzTypes/RawStrings.h>

#include <cstring>
#include <memory>

#include <qz/common/uQzTypes/QzEncoding.h>

namespace qz {
namespace {

// The terminator of AText is copied too.
template <class TChar> TChar* Copy(const TChar* AText, std::size_t ALength) {
    auto Result = std::make_unique<TChar[]>(ALength + 1);
    std::memcpy(Result.get(), AText, (ALength + 1) * sizeof(TChar));
    return Result.release();
}

} // namespace

char* QzStrNewA(const AnsiString& AText) {
    return Copy(AText.c_str(), std::strlen(AText.c_str()));
}

char* QzStrNewA(const WideString& AText) {
    return QzStrNewA(AnsiString(TQzEncoding::ConvertW(AText, cSystemCodePage)));
}

char16_t* QzStrNewW(const WideString& AText) {
    return AText.IsEmpty() ? nullptr : Copy(AText.c_str(), AText.size());
}

char16_t* QzStrNewW(const AnsiString& AText) {
    return QzStrNewW(TQzEncoding::ConvertA(AText));
}

void QzStrDispose(char* AText) noexcept {
    const std::unique_ptr<char[]> Gone(AText);
}

void QzStrDispose(char16_t* AText) noexcept {
    const std::unique_ptr<char16_t[]> Gone(AText);
}

} // namespace qz
