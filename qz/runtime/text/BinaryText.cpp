#include <qz/runtime/text/BinaryText.h>

#include <algorithm>

#include <qz/runtime/base/UtfForms.h>
#include <qz/runtime/text/detail/BinaryPaths.h>

namespace qz {
namespace {

// The characters that AWrite gives for each piece of the bytes, as 16-bit text. The bytes of a piece are a
// multiple of three, so that no padding stands inside the text.
template <class TWrite>
UnicodeString WideText(std::span<const std::byte> ABytes, std::size_t ALength, TWrite AWrite) {
    constexpr std::size_t cPiece = 1536;
    char Piece[2 * cPiece];
    UnicodeString Result = UnicodeString::ForOverwrite(ALength);
    char16_t* Dest = Result.UniqueData();
    while (!ABytes.empty()) {
        const auto Now = ABytes.first(std::min(ABytes.size(), cPiece));
        const auto Count = static_cast<std::size_t>(AWrite(Now, Piece) - Piece);
        WidenBytes({Piece, Count}, Dest);
        Dest += Count;
        ABytes = ABytes.subspan(Now.size());
    }
    return Result;
}

std::byte* Start(const TBytes& ABytes) noexcept {
    return reinterpret_cast<std::byte*>(ABytes.data());
}

} // namespace

char* detail::ManyToBase64(std::span<const std::byte> ABytes, TBase64Alphabet AAlphabet,
                           char* ADest) noexcept {
    return BestBinaryPath->BytesToBase64(ABytes, AAlphabet, ADest);
}

std::byte* detail::ManyToBytes(std::string_view AText, std::byte* ADest) noexcept {
    return BestBinaryPath->Base64ToBytes(AText, ADest);
}

char* BytesToHex(std::span<const std::byte> ABytes, char* ADest) noexcept {
    return detail::BestBinaryPath->BytesToHex(ABytes, ADest);
}

std::byte* HexToBytes(std::string_view AText, std::byte* ADest) noexcept {
    return detail::BestBinaryPath->HexToBytes(AText, ADest);
}

UnicodeString Base64Text(std::span<const std::byte> ABytes, TBase64Alphabet AAlphabet) {
    return WideText(ABytes, Base64Length(ABytes.size(), AAlphabet), [AAlphabet](auto APiece, char* ADest) {
        return BytesToBase64(APiece, AAlphabet, ADest);
    });
}

TBytes Base64Bytes(std::string_view AText) {
    TBytes Result = TBytes::ForOverwrite(Base64Room(AText.size()));
    const std::byte* End = Base64ToBytes(AText, Start(Result));
    Result.SetLength(static_cast<std::size_t>(End - Start(Result)));
    return Result;
}

UnicodeString HexText(std::span<const std::byte> ABytes) {
    return WideText(ABytes, 2 * ABytes.size(),
                    [](auto APiece, char* ADest) { return BytesToHex(APiece, ADest); });
}

TBytes HexBytes(std::string_view AText) {
    TBytes Result = TBytes::ForOverwrite(AText.size() / 2);
    HexToBytes(AText, Start(Result));
    return Result;
}

} // namespace qz
