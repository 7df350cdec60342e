// Conversions between UTF-8 and UTF-16 beside ICU's, glibc's iconv and a plain loop. "caller" asks for the
// length and then converts, as one does who makes a string; "ours" and the peers convert alone, into a target
// that is large enough. The argument is the size of the text in bytes of UTF-8, about. Bytes per second are
// those of the source.
#include <benchmark/benchmark.h>
#include <iconv.h>
#include <unicode/ustring.h>

#include <string>
#include <vector>

#include <qz/runtime/base/Utf.h>
#include <qz/runtime/base/UtfForms.h>
#include <qz/runtime/base/detail/UtfPaths.h>

namespace {

struct TKind {
    const char* Name;
    const char* Sample;
};

const TKind cKinds[] = {
    {"Ascii", "The quick brown fox jumps over the lazy dog, 1234567890 times. "},
    {"Latin", "Zwölf Boxkämpfer jagen Viktor quer über den großen Sylter Deich; où est passé l'été ? "},
    {"Cyrillic", "Съешь же ещё этих мягких французских булок, да выпей чаю. "},
    {"Chinese", "天地玄黄宇宙洪荒日月盈昃辰宿列张寒来暑往秋收冬藏,闰余成岁。"},
    {"Emoji", "😀😃😄😁😆😅🤣😂🙂🙃😉😊😇🥰😍🤩😘😗😚😙"},
    {"Mixed", "Meeting 会议 at 10:30, café «Привет» 😀 okay? Ça va – 5 € "},
};

std::string TextOf(const TKind& AKind, std::size_t ASize) {
    const std::string Sample = AKind.Sample;
    std::string Text;
    for (std::size_t Pos = 0; Text.size() < ASize;) {
        const std::size_t Start = Pos;
        qz::NextCodePoint(std::string_view(Sample), Pos);
        Text.append(Sample, Start, Pos - Start);
        Pos %= Sample.size();
    }
    return Text;
}

char16_t* PlainToUtf16(std::string_view AText, char16_t* ADest) {
    const auto* Here = reinterpret_cast<const unsigned char*>(AText.data());
    const auto* End = Here + AText.size();
    while (Here < End) {
        const unsigned Lead = *Here;
        if (Lead < 0x80) {
            *ADest++ = static_cast<char16_t>(Lead);
            ++Here;
        } else if (Lead >= 0xC2 && Lead < 0xE0 && End - Here > 1 && (Here[1] & 0xC0) == 0x80) {
            *ADest++ = static_cast<char16_t>((Lead & 0x1F) << 6 | (Here[1] & 0x3F));
            Here += 2;
        } else if (const unsigned Three =
                       (Lead & 0xF) << 12 | (End - Here > 2 ? (Here[1] & 0x3F) << 6 | (Here[2] & 0x3F) : 0u);
                   Lead >= 0xE0 && Lead < 0xF0 && End - Here > 2 && (Here[1] & 0xC0) == 0x80 &&
                   (Here[2] & 0xC0) == 0x80 && Three >= 0x800 && (Three & 0xF800) != 0xD800) {
            *ADest++ = static_cast<char16_t>(Three);
            Here += 3;
        } else if (Lead >= 0xF0 && Lead < 0xF5 && End - Here > 3 && (Here[1] & 0xC0) == 0x80 &&
                   (Here[2] & 0xC0) == 0x80 && (Here[3] & 0xC0) == 0x80) {
            const unsigned Code =
                (Lead & 7) << 18 | (Here[1] & 0x3Fu) << 12 | (Here[2] & 0x3Fu) << 6 | (Here[3] & 0x3Fu);
            *ADest++ = static_cast<char16_t>(0xD7C0 + (Code >> 10));
            *ADest++ = static_cast<char16_t>(0xDC00 + (Code & 0x3FF));
            Here += 4;
        } else {
            *ADest++ = 0xFFFD;
            ++Here;
        }
    }
    return ADest;
}

std::size_t PlainUtf16Length(std::string_view AText) {
    std::size_t Length = 0;
    for (const char Byte : AText) {
        const auto Value = static_cast<unsigned char>(Byte);
        Length += (Value & 0xC0) == 0x80 ? 0u : Value < 0xF0 ? 1u : 2u;
    }
    return Length;
}

std::size_t PlainUtf8Length(std::u16string_view AText) {
    std::size_t Length = 0;
    for (const char16_t Unit : AText)
        Length += Unit < 0x80 ? 1u : Unit < 0x800 || (Unit & 0xF800) == 0xD800 ? 2u : 3u;
    return Length;
}

char* PlainToUtf8(std::u16string_view AText, char* ADest) {
    for (std::size_t I = 0; I < AText.size(); ++I) {
        unsigned Code = AText[I];
        if (Code < 0x80) {
            *ADest++ = static_cast<char>(Code);
            continue;
        }
        if (Code < 0x800) {
            *ADest++ = static_cast<char>(0xC0 | Code >> 6);
            *ADest++ = static_cast<char>(0x80 | (Code & 0x3F));
            continue;
        }
        if ((Code & 0xFC00) == 0xD800 && I + 1 < AText.size() && (AText[I + 1] & 0xFC00) == 0xDC00) {
            Code = 0x10000 + ((Code & 0x3FF) << 10) + (AText[++I] & 0x3FFu);
            *ADest++ = static_cast<char>(0xF0 | Code >> 18);
            *ADest++ = static_cast<char>(0x80 | (Code >> 12 & 0x3F));
        } else {
            Code = (Code & 0xF800) == 0xD800 ? 0xFFFDu : Code;
            *ADest++ = static_cast<char>(0xE0 | Code >> 12);
        }
        *ADest++ = static_cast<char>(0x80 | (Code >> 6 & 0x3F));
        *ADest++ = static_cast<char>(0x80 | (Code & 0x3F));
    }
    return ADest;
}

// The texts of one benchmark with targets of more than enough room.
struct TTexts {
    TTexts(const TKind& AKind, std::size_t ASize)
        : Narrow(TextOf(AKind, ASize)),
          Wide(qz::Utf8ToUtf16(Narrow)),
          ToWide(Narrow.size() + 64),
          ToNarrow(Narrow.size() + 64) {}

    std::string Narrow;
    std::u16string Wide;
    std::vector<char16_t> ToWide;
    std::vector<char> ToNarrow;
};

void OurCaller16(TTexts& ATexts) {
    benchmark::DoNotOptimize(qz::Utf8ToUtf16Length(ATexts.Narrow));
    benchmark::DoNotOptimize(qz::Utf8ToUtf16(ATexts.Narrow, ATexts.ToWide.data()));
}

void OurLength16(TTexts& ATexts) {
    benchmark::DoNotOptimize(qz::Utf8ToUtf16Length(ATexts.Narrow));
}

void Ours16(TTexts& ATexts) {
    benchmark::DoNotOptimize(qz::Utf8ToUtf16(ATexts.Narrow, ATexts.ToWide.data()));
}

template <int cPath> void OnPath16(TTexts& ATexts) {
    benchmark::DoNotOptimize(qz::detail::UtfPaths()[cPath]->Utf8ToUtf16(ATexts.Narrow, ATexts.ToWide.data()));
}

void PlainCaller16(TTexts& ATexts) {
    benchmark::DoNotOptimize(PlainUtf16Length(ATexts.Narrow));
    benchmark::DoNotOptimize(PlainToUtf16(ATexts.Narrow, ATexts.ToWide.data()));
}

void Plain16(TTexts& ATexts) {
    benchmark::DoNotOptimize(PlainToUtf16(ATexts.Narrow, ATexts.ToWide.data()));
}

void Icu16(TTexts& ATexts) {
    UErrorCode Error = U_ZERO_ERROR;
    int32_t Length = 0;
    benchmark::DoNotOptimize(u_strFromUTF8(ATexts.ToWide.data(), static_cast<int32_t>(ATexts.ToWide.size()),
                                           &Length, ATexts.Narrow.data(),
                                           static_cast<int32_t>(ATexts.Narrow.size()), &Error));
}

void OurCaller8(TTexts& ATexts) {
    benchmark::DoNotOptimize(qz::Utf16ToUtf8Length(ATexts.Wide));
    benchmark::DoNotOptimize(qz::Utf16ToUtf8(ATexts.Wide, ATexts.ToNarrow.data()));
}

void OurLength8(TTexts& ATexts) {
    benchmark::DoNotOptimize(qz::Utf16ToUtf8Length(ATexts.Wide));
}

void Ours8(TTexts& ATexts) {
    benchmark::DoNotOptimize(qz::Utf16ToUtf8(ATexts.Wide, ATexts.ToNarrow.data()));
}

template <int cPath> void OnPath8(TTexts& ATexts) {
    benchmark::DoNotOptimize(qz::detail::UtfPaths()[cPath]->Utf16ToUtf8(ATexts.Wide, ATexts.ToNarrow.data()));
}

void PlainCaller8(TTexts& ATexts) {
    benchmark::DoNotOptimize(PlainUtf8Length(ATexts.Wide));
    benchmark::DoNotOptimize(PlainToUtf8(ATexts.Wide, ATexts.ToNarrow.data()));
}

void Plain8(TTexts& ATexts) {
    benchmark::DoNotOptimize(PlainToUtf8(ATexts.Wide, ATexts.ToNarrow.data()));
}

void Icu8(TTexts& ATexts) {
    UErrorCode Error = U_ZERO_ERROR;
    int32_t Length = 0;
    benchmark::DoNotOptimize(u_strToUTF8(ATexts.ToNarrow.data(), static_cast<int32_t>(ATexts.ToNarrow.size()),
                                         &Length, ATexts.Wide.data(),
                                         static_cast<int32_t>(ATexts.Wide.size()), &Error));
}

// One open descriptor for each direction, as a careful caller keeps it.
void Convert(iconv_t AConverter, const void* ASource, std::size_t ASize, void* ATarget, std::size_t ARoom) {
    char* Source = const_cast<char*>(static_cast<const char*>(ASource));
    char* Target = static_cast<char*>(ATarget);
    benchmark::DoNotOptimize(iconv(AConverter, &Source, &ASize, &Target, &ARoom));
}

void Iconv16(TTexts& ATexts) {
    static const iconv_t Converter = iconv_open("UTF-16LE", "UTF-8");
    Convert(Converter, ATexts.Narrow.data(), ATexts.Narrow.size(), ATexts.ToWide.data(),
            2 * ATexts.ToWide.size());
}

void Iconv8(TTexts& ATexts) {
    static const iconv_t Converter = iconv_open("UTF-8", "UTF-16LE");
    Convert(Converter, ATexts.Wide.data(), 2 * ATexts.Wide.size(), ATexts.ToNarrow.data(),
            ATexts.ToNarrow.size());
}

void Add(const char* ADirection, const char* AWay, void (*AConvert)(TTexts&)) {
    const bool IsFromNarrow = std::string_view(ADirection) == "Utf8ToUtf16";
    for (const TKind& Kind : cKinds) {
        const std::string Name = std::string("BM_") + ADirection + "<" + Kind.Name + ">/" + AWay;
        const auto Body = [&Kind, AConvert, IsFromNarrow](benchmark::State& AState) {
            TTexts Texts(Kind, static_cast<std::size_t>(AState.range(0)));
            for (auto _ : AState) {
                AConvert(Texts);
                benchmark::ClobberMemory();
            }
            AState.SetBytesProcessed(
                AState.iterations() *
                static_cast<std::int64_t>(IsFromNarrow ? Texts.Narrow.size() : 2 * Texts.Wide.size()));
        };
        benchmark::RegisterBenchmark(Name.c_str(), Body)->Arg(20)->Arg(50)->Arg(100)->Arg(1 << 20);
    }
}

[[maybe_unused]] const bool cAreAdded = [] {
    Add("Utf8ToUtf16", "caller", OurCaller16);
    Add("Utf8ToUtf16", "length", OurLength16);
    Add("Utf8ToUtf16", "ours", Ours16);
    Add("Utf8ToUtf16", "plain caller", PlainCaller16);
    Add("Utf8ToUtf16", "plain", Plain16);
    Add("Utf8ToUtf16", "icu", Icu16);
    Add("Utf8ToUtf16", "iconv", Iconv16);
    Add("Utf16ToUtf8", "caller", OurCaller8);
    Add("Utf16ToUtf8", "length", OurLength8);
    Add("Utf16ToUtf8", "ours", Ours8);
    Add("Utf16ToUtf8", "plain caller", PlainCaller8);
    Add("Utf16ToUtf8", "plain", Plain8);
    Add("Utf16ToUtf8", "icu", Icu8);
    Add("Utf16ToUtf8", "iconv", Iconv8);
    if (qz::detail::UtfPaths().size() > 2) {
        Add("Utf8ToUtf16", "portable", OnPath16<0>);
        Add("Utf8ToUtf16", "sse4", OnPath16<1>);
        Add("Utf16ToUtf8", "portable", OnPath8<0>);
        Add("Utf16ToUtf8", "sse4", OnPath8<1>);
    }
    return true;
}();

} // namespace
