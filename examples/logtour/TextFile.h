// A text file of any code page, which is logged line by line.
//
//     const TTextFile File = LogTextFile(u"notes.txt", 0, *Log, Progress);
//     File.Lines;                                   // and how many of each level
#pragma once

#include <array>
#include <cstdint>
#include <functional>

#include <qz/common/uQzLogger.h>

struct TTextFile {
    std::uint16_t CodePage = 0; // 0 for the system's
    std::int64_t Bytes = 0;
    std::int64_t Lines = 0;
    std::int64_t Messages = 0; // more than lines where one is longer than 64 KiB and goes in pieces
    std::array<std::int64_t, 8> OfLevel{};
};

// Called for each thousandth line.
using TOnProgress = std::function<void(const TTextFile& AFile)>;

// The level of a line, by its words; a blank one is llTrace.
qz::TQzLogLevel LevelOf(std::u16string_view ALine) noexcept;

// Loads the file, in the code page of its mark, else in ACodePage, and logs its lines. Raises what the loading raises, before
// anything is logged.
TTextFile LogTextFile(const qz::UnicodeString& AFileName, std::uint16_t ACodePage, qz::IQzLogger& ALog,
                      const TOnProgress& AProgress);
