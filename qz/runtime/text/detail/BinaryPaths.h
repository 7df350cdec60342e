// The ways in which bytes become Base64 and hexadecimal text and back, one for each kind of machine;
// BinaryText.h takes the best one.
//
//     for (const detail::TBinaryPath* Path : detail::BinaryPaths())     // a test goes through all of them
//         Path->BytesToHex(Bytes, Target);
//
// Each function has the contract of its public namesake.
#pragma once

#include <span>

#include <qz/platform/Machine.h>
#include <qz/runtime/text/BinaryText.h>

namespace qz::detail {

struct TBinaryPath {
    const char* Name;
    char* (*BytesToBase64)(std::span<const std::byte> ABytes, TBase64Alphabet AAlphabet,
                           char* ADest) noexcept;
    std::byte* (*Base64ToBytes)(std::string_view AText, std::byte* ADest) noexcept;
    char* (*BytesToHex)(std::span<const std::byte> ABytes, char* ADest) noexcept;
    std::byte* (*HexToBytes)(std::string_view AText, std::byte* ADest) noexcept;
};

extern const TBinaryPath cBinaryPortablePath;
#ifdef __x86_64__
extern const TBinaryPath cBinarySse4Path;
extern const TBinaryPath cBinaryAvx2Path;
#endif

// The paths that this machine can go, the best one last.
QZ_API std::span<const TBinaryPath* const> BinaryPaths() noexcept;

// The best path for this machine, once static initialisation has chosen it.
extern platform::TChosenPath<TBinaryPath> BestBinaryPath;

} // namespace qz::detail
