// TQzEncoding: every conversion of text between code pages.
//
//     UnicodeString Wide = TQzEncoding::ConvertA(RawByteString("Z\xF6"), 1252);
//     RawByteString Narrow = TQzEncoding::ConvertW(u"Zoë", 65001);
//     RawByteString Other = TQzEncoding::ConvertB(Bytes.data(), Bytes.size(), 1252, 866);
//
// Code page 0 is the system's. Lengths count bytes in ConvertA and ConvertB and 16-bit units in ConvertW; a
// length of -1 means that the text ends before its first terminator (a character 0). Null and empty sources
// give the empty text. Decoding is lenient except in the form that fills a target of the caller's. Encoding
// joins a letter and the combining mark after it where the page has the joined character. Every form raises
// EOSError naming the code page when the system cannot convert it or, strictly, the text; nothing is half
// done then. What is ill-formed in UTF-8 and UTF-32 gives U+FFFD. All of them may run on any number of
// threads.
#pragma once

#include <qz/runtime/base/DynArray.h>
#include <qz/runtime/text/AnsiString.h>
#include <qz/runtime/text/Encoding.h>

namespace qz {

class QZ_API TQzEncoding : public TEncoding {
    QZ_CLASS(TQzEncoding, TEncoding)

public:
    using TEncoding::TEncoding;

    // Bytes to UTF-16.
    static UnicodeString ConvertA(const AnsiString& AText);
    static UnicodeString ConvertA(const RawByteString& AText, std::uint16_t ACodePage);
    static UnicodeString ConvertA(const void* ASrc, std::int32_t ALen, std::uint16_t ACodePage);
    // From one 8-bit code page to another, by way of UTF-16.
    static RawByteString ConvertA(const void* ASrc, std::int32_t ALen, std::uint16_t ASrcCodePage,
                                  std::uint16_t ADstCodePage);
    // Into a target of ADstLen units; the number written, a terminator that ALen -1 met counted. A null
    // target of length 0 gives the number needed. Strict, apart from the pages that know no strictness (42,
    // 50220, 50221, 50222, 50225, 50227, 50229, 57002 to 57011, 65000, 65001).
    static std::int32_t ConvertA(const void* ASrc, std::int32_t ALen, std::uint16_t ACodePage, char16_t* ADst,
                                 std::int32_t ADstLen);

    // UTF-16 to bytes. The result carries ACodePage.
    static RawByteString ConvertW(const UnicodeString& AText, std::uint16_t ACodePage);
    static RawByteString ConvertW(const char16_t* ASrc, std::int32_t ALen, std::uint16_t ACodePage);
    // Into a target of ADstLen bytes; a null target of length 0 gives the number needed.
    static std::int32_t ConvertW(const char16_t* ASrc, std::int32_t ALen, char* ADst, std::int32_t ADstLen,
                                 std::uint16_t ACodePage);

    // Bytes in any code page to an 8-bit one; equal pages are copied as they are. A target page of 1200,
    // 1201, 12000 or 12001 breaks an assertion: an 8-bit text cannot hold it.
    static RawByteString ConvertB(const void* ASrc, std::size_t ASize, std::uint16_t ASrcCodePage,
                                  std::uint16_t ADstCodePage);
    static RawByteString ConvertB(const TBytes& ABytes, std::uint16_t ASrcCodePage,
                                  std::uint16_t ADstCodePage);
    // Bytes in any code page to UTF-16; of 1200 the whole units as they are.
    static UnicodeString ConvertB(const void* ASrc, std::size_t ASize, std::uint16_t ASrcCodePage);
};

// Whether an 8-bit text cannot hold the page: 1200, 1201, 12000, 12001.
constexpr bool QzIsWideCodePage(std::uint16_t ACodePage) noexcept {
    return ACodePage == 1200 || ACodePage == 1201 || ACodePage == 12000 || ACodePage == 12001;
}

} // namespace qz
