// Unit uQzMD5: the digest MD5 of RFC 1321.
//
//     MD5Hash(u"abc");                              // "900150983CD24FB0D6963F7D28E17F72"
//     TMD5Context Context;
//     TMD5Digest Digest;
//     MD5Init(Context);
//     MD5Update(Context, "abc", 3);
//     MD5Final(Context, Digest);
//
// MD5 serves to tell contents apart. It is not fit for signatures: collisions can be made. Different contexts
// may be used by different threads.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

#include <qz/runtime/base/StringArg.h>
#include <qz/runtime/text/AnsiString.h>

namespace qz {

using TMD5Count = std::array<std::uint32_t, 2>; // of bits, low word first
using TMD5State = std::array<std::uint32_t, 4>;
using TMD5Block = std::array<std::uint32_t, 16>;
using TMD5CBits = std::array<std::uint8_t, 8>; // the count as it stands in the padding
using TMD5Digest = std::array<std::uint8_t, 16>;
using TMD5Buffer = std::array<std::uint8_t, 64>;

struct TMD5Context {
    TMD5State State;
    TMD5Count Count;
    TMD5Buffer Buffer; // the bytes after the last full block
};

QZ_API void MD5Init(TMD5Context& AContext) noexcept;
// Adds bytes. The count of bits wraps at 2^64.
QZ_API void MD5Update(TMD5Context& AContext, const void* AInput, std::size_t ALength) noexcept;
// Gives the digest and clears the context, which MD5Init makes usable again.
QZ_API void MD5Final(TMD5Context& AContext, TMD5Digest& ADigest) noexcept;

// A negative size counts as 0.
QZ_API TMD5Digest MD5Hash(const void* ABuffer, std::int64_t ASize) noexcept;
// As 32 upper case digits: of the bytes as they stand, and of the UTF-8 form.
QZ_API UnicodeString MD5Hash(const TByteText& AText);
QZ_API UnicodeString MD5Hash(const TStringArg& AText);

} // namespace qz
