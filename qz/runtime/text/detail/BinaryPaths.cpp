#include <qz/runtime/text/detail/BinaryPaths.h>

#include <qz/runtime/text/detail/BinaryScalar.h>

namespace qz::detail {
namespace {

char* BytesToBase64(std::span<const std::byte> ABytes, TBase64Alphabet AAlphabet, char* ADest) noexcept {
    return ScalarBytesToBase64({ABytes.data(), ADest}, ABytes.data() + ABytes.size(), AAlphabet);
}

std::byte* Base64ToBytes(std::string_view AText, std::byte* ADest) noexcept {
    return ScalarBase64ToBytes({AText.data(), ADest}, AText.data() + AText.size());
}

char* BytesToHex(std::span<const std::byte> ABytes, char* ADest) noexcept {
    return ScalarBytesToHex({ABytes.data(), ADest}, ABytes.data() + ABytes.size());
}

std::byte* HexToBytes(std::string_view AText, std::byte* ADest) noexcept {
    return ScalarHexToBytes({AText.data(), ADest}, AText.data() + AText.size());
}

const TBinaryPath* const cPaths[] = {
    &cBinaryPortablePath,
#ifdef __x86_64__
    &cBinarySse4Path,
    &cBinaryAvx2Path,
#endif
};

[[maybe_unused]] const bool cIsChosen = BestBinaryPath.Choose(*BinaryPaths().back());

} // namespace

constinit const TBinaryPath cBinaryPortablePath = {
    .Name = "portable",
    .BytesToBase64 = BytesToBase64,
    .Base64ToBytes = Base64ToBytes,
    .BytesToHex = BytesToHex,
    .HexToBytes = HexToBytes,
};

constinit platform::TChosenPath<TBinaryPath> BestBinaryPath(cBinaryPortablePath);

std::span<const TBinaryPath* const> BinaryPaths() noexcept {
    return {cPaths, static_cast<std::size_t>(platform::BestMachine()) + 1};
}

} // namespace qz::detail
