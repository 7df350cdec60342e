// Writes down what the library answers for every code page of one or two bytes a character; under Wine these are
// the answers from which tools/code-page-tables makes the tables for Linux. By hand:
//     x86_64-w64-mingw32-g++ -std=c++20 -O1 -static -I. tools/code-page-answers.cpp
//         qz/platform/windows/CodePages.cpp qz/platform/windows/Error.cpp -o answers.exe
//     tools/wine answers.exe > answers.txt
// A line each:
//     page NUMBER SIZE                     what follows is about this page
//     code BYTES CHARACTERS STRICTNESS     what the bytes decode to; "+" when strict decoding takes them, too
//     char CHARACTER BYTES                 what the character is encoded to
#include <cstdio>
#include <string>

#include <qz/platform/CodePages.h>

namespace {

using namespace qz::platform;

void PrintCode(uint32_t APage, const std::string& ABytes) {
    char16_t Text[8];
    const auto Source = std::as_bytes(std::span(ABytes));
    const bool Strict = *CodePageToUtf16(APage, Source, Text, TDecoding::Strict) != 0;
    const size_t Length = *CodePageToUtf16(APage, Source, Text, TDecoding::Lenient);
    std::printf("code ");
    for (const char Byte : ABytes)
        std::printf("%02x", static_cast<unsigned>(static_cast<unsigned char>(Byte)));
    std::printf(" ");
    for (size_t I = 0; I < Length; ++I)
        std::printf("%04x", static_cast<unsigned>(Text[I]));
    std::printf(" %c\n", Strict ? '+' : '-');
}

void PrintChar(uint32_t APage, char16_t AChar) {
    char Bytes[8];
    const size_t Length = *Utf16ToCodePage(APage, {&AChar, 1}, Bytes, TComposing::Plain);
    std::printf("char %04x ", static_cast<unsigned>(AChar));
    for (size_t I = 0; I < Length; ++I)
        std::printf("%02x", static_cast<unsigned>(static_cast<unsigned char>(Bytes[I])));
    std::printf("\n");
}

} // namespace

int main() {
    for (uint32_t Page = 1; Page < 65536; ++Page) {
        const uint32_t Size = CodePageMaxCharSize(Page);
        if (Size == 0 || Size > 2)
            continue;
        std::printf("page %u %u\n", static_cast<unsigned>(Page), static_cast<unsigned>(Size));
        for (int Code = 0; Code < 256; ++Code)
            PrintCode(Page, std::string(1, static_cast<char>(Code)));
        for (int Code = 0; Size == 2 && Code < 65536; ++Code)
            PrintCode(Page, {static_cast<char>(Code >> 8), static_cast<char>(Code)});
        for (int Char = 0; Char < 65536; ++Char)
            PrintChar(Page, static_cast<char16_t>(Char));
    }
    return 0;
}
