// Reads to the end of a source whose size is only a guess.
#pragma once

#include <algorithm>
#include <cstddef>
#include <exception>
#include <span>
#include <vector>

#include <qz/platform/Error.h>

namespace qz::platform::detail {

// Makes AOut ASize long. Raises nothing.
inline TResult<> MakeRoom(std::vector<std::byte>& AOut, std::size_t ASize) noexcept {
    try {
        AOut.resize(ASize);
    } catch (const std::exception&) {
        return ErrorOfMemory();
    }
    return {};
}

// Calls AReadSome(std::span<std::byte>), a TResult<std::size_t>, until it gives 0. AExpected is the likely size.
template <class TReadSome>
TResult<std::vector<std::byte>> ReadAll(std::size_t AExpected, const TReadSome& AReadSome) {
    constexpr std::size_t cLeastGrowth = 4096;
    std::vector<std::byte> Result;
    std::size_t Length = 0;
    // One byte more than expected, so that the end shows without another growth.
    for (std::size_t Size = AExpected + 1;; Size = std::max(Size * 2, cLeastGrowth)) {
        if (const TResult<> Room = MakeRoom(Result, Size); !Room)
            return Room.Error();
        while (Length < Size) {
            const TResult<std::size_t> Got = AReadSome(std::span(Result).subspan(Length));
            if (!Got)
                return Got.Error();
            if (*Got == 0) {
                Result.resize(Length);
                return Result;
            }
            Length += *Got;
        }
    }
}

} // namespace qz::platform::detail
