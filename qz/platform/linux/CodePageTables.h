// The tables by which a page of one or two bytes a character is converted. They are made when a page is used
// for the first time and live as long as the process.
#pragma once

#include <array>
#include <atomic>
#include <cstdint>
#include <vector>

#include <qz/platform/Error.h>
#include <qz/platform/linux/CodePageData.h>

namespace qz::platform::detail {

using TCodeRowChars = std::array<char16_t, 256>;

struct TCodePage {
    std::uint32_t Page = 0;
    // Decoding: a character for each byte, for a lead byte one that stands for nothing.
    TCodeRowChars Single{};
    // 1 for a byte that strict decoding refuses.
    std::array<std::uint8_t, 256> Refused{};
    // For each byte 0, or for a lead byte one more than the place in Pairs of the characters of its trail bytes.
    std::array<std::uint8_t, 256> Leads{};
    std::vector<TCodeRowChars> Pairs;
    // Encoding: a byte, or lead byte * 256 + trail byte, for each character; one of them has all characters.
    std::vector<std::uint8_t> Bytes;
    std::vector<std::uint16_t> Codes;
    std::uint16_t Default = 0;
    char16_t UnicodeDefault = 0;
    bool HasAscii = false; // the bytes 0 to 7F mean what they mean in ASCII
    bool HasLatin = false; // and A0 to FF mean what they mean in Latin-1
    bool Refuses = false;  // there is a byte that strict decoding refuses

    bool IsDouble() const noexcept { return !Codes.empty(); }
};

// The tables that are there, found by the number of their page: a hash table with open addressing that only
// grows, so that reading needs no lock.
constexpr std::uint32_t cCodePageSlotBits = 9; // several times as many slots as there are pages
constexpr std::size_t cCodePageSlots = 1 << cCodePageSlotBits;
extern constinit std::array<std::atomic<const TCodePage*>, cCodePageSlots> CodePageSlots;

inline std::size_t FirstCodePageSlot(std::uint32_t APage) noexcept {
    return (APage * 0x9E3779B1u) >> (32 - cCodePageSlotBits);
}

// The tables of a page if they were made already, or null.
inline const TCodePage* FindCodePageTables(std::uint32_t APage) noexcept {
    for (std::size_t Slot = FirstCodePageSlot(APage);; Slot = (Slot + 1) % cCodePageSlots) {
        const TCodePage* Tables = CodePageSlots[Slot].load(std::memory_order_acquire);
        if (Tables == nullptr || Tables->Page == APage)
            return Tables;
    }
}

// Whether APage is converted by tables, be they made or not.
bool HasCodePageTables(std::uint32_t APage) noexcept;

// Makes the tables of such a page, or finds those that another thread has made. Fails with ENOMEM, or with EINVAL
// where ICU lacks the converter that they are made from. Any thread, one at a time.
TResult<const TCodePage*> MakeCodePageTables(std::uint32_t APage) noexcept;

} // namespace qz::platform::detail
