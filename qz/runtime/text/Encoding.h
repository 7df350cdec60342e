// TEncoding: a code page as an object, to hand to what reads and writes text.
//
//     TBytes Bytes = TEncoding::UTF8().GetBytes(u"Zoë");
//     UnicodeString Text = TEncoding(1252).GetString(Bytes);
//
// An encoding is a value without state: copies are equal, and any number of threads may use one.
#pragma once

#include <cstdint>
#include <span>

#include <qz/runtime/base/DynArray.h>
#include <qz/runtime/base/StringArg.h>
#include <qz/runtime/objects/Object.h>
#include <qz/runtime/text/CodePages.h>

namespace qz {

class QZ_API TEncoding : public TObject {
    QZ_CLASS(TEncoding, TObject)

public:
    // The system's code page by default; it is queried at the first conversion.
    explicit TEncoding(std::uint16_t ACodePage = cSystemCodePage) noexcept : FCodePage(ACodePage) {}

    std::uint16_t CodePage() const noexcept { return FCodePage; }
    bool IsSingleByte() const;
    // The mark that opens a file in this encoding: of UTF-8, UTF-16 and UTF-32; empty for any other.
    TBytes GetPreamble() const;

    // What a text takes in bytes, and bytes in 16-bit units. All of these convert leniently and raise
    // EOSError naming the page when the system cannot convert it.
    std::size_t GetByteCount(const TStringArg& AText) const;
    std::size_t GetCharCount(std::span<const std::byte> ABytes) const;
    TBytes GetBytes(const TStringArg& AText) const;
    UnicodeString GetString(std::span<const std::byte> ABytes) const;
    UnicodeString GetString(const TBytes& ABytes) const {
        return GetString(std::as_bytes(std::span(ABytes)));
    }
    // From one encoding to another.
    static TBytes Convert(const TEncoding& ASource, const TEncoding& ATarget, const TBytes& ABytes);

    static const TEncoding& ANSI();             // the system's code page
    static const TEncoding& ASCII();            // 20127
    static const TEncoding& UTF7();             // 65000
    static const TEncoding& UTF8();             // 65001
    static const TEncoding& Unicode();          // 1200
    static const TEncoding& BigEndianUnicode(); // 1201

    // The encoding whose mark ABytes begin with; ADefault without one. AMarkLength receives the length of the
    // mark.
    static TEncoding Detect(std::span<const std::byte> ABytes, const TEncoding& ADefault,
                            std::size_t& AMarkLength);

    friend bool operator==(const TEncoding& ALeft, const TEncoding& ARight) noexcept {
        return ALeft.FCodePage == ARight.FCodePage;
    }

private:
    std::uint16_t FCodePage;
};

} // namespace qz
