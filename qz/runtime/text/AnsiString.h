// The 8-bit string types: AnsiString in the system's code page, UTF8String, RawByteString for bytes of any
// page.
//
//     UTF8String Narrow(UnicodeString(u"Zoë"));      // four bytes, code page 65001
//     AnsiString Local(Narrow);                      // converted to the system's code page
//     UnicodeString Wide = Local.ToUnicode();
//
// Like UnicodeString each is one pointer wide, counted and copied when written to. Every text carries the
// number of its code page; code page 0 means the system's. None of them is made implicitly from a literal or
// a UnicodeString, so that an overload on both kinds takes the 16-bit one.
//
// Threads: as for UnicodeString.
#pragma once

#include <compare>
#include <cstdint>
#include <functional>
#include <iosfwd>
#include <span>
#include <string>
#include <string_view>
#include <utility>

#include <qz/runtime/text/CodePages.h>

namespace qz {

// The base of the 8-bit string types: reference-counted bytes with a code page.
class QZ_API TByteText {
public:
    using value_type = char;

    TByteText() noexcept = default;
    // AText is in ACodePage already.
    TByteText(std::string_view AText, std::uint16_t ACodePage);
    TByteText(const TByteText& AOther) noexcept : FData(AOther.FData) {
        if (FData != nullptr)
            Block()->AddRef();
    }
    TByteText(TByteText&& AOther) noexcept : FData(std::exchange(AOther.FData, nullptr)) {}
    ~TByteText() {
        if (FData != nullptr)
            Block()->Release();
    }
    TByteText& operator=(TByteText AOther) noexcept {
        std::swap(FData, AOther.FData);
        return *this;
    }

    int Length() const noexcept { return FData == nullptr ? 0 : Block()->Length; }
    std::size_t size() const noexcept { return static_cast<std::size_t>(Length()); }
    bool IsEmpty() const noexcept { return Length() == 0; }
    bool empty() const noexcept { return Length() == 0; }
    const char* data() const noexcept { return FData == nullptr ? "" : FData; }
    const char* c_str() const noexcept { return data(); }
    const char* begin() const noexcept { return data(); }
    const char* end() const noexcept { return data() + Length(); }
    char operator[](std::size_t AIndex) const noexcept { return data()[AIndex]; }
    std::string_view View() const noexcept { return {data(), size()}; }
    std::span<const std::byte> Bytes() const noexcept { return std::as_bytes(std::span(data(), size())); }
    // The code page of the text; 0 for an empty text, whose code page is that of its type.
    std::uint16_t CodePage() const noexcept { return FData == nullptr ? cSystemCodePage : Block()->CodePage; }
    int RefCount() const noexcept {
        return FData == nullptr ? 0 : Block()->RefCount.load(std::memory_order_relaxed);
    }
    // The text in 16-bit units. Bytes that the code page does not know become what its table says for them,
    // or U+FFFD. Raises EOSError when the system cannot convert the page. A text without a known page is
    // taken to be in the system's.
    UnicodeString ToUnicode() const;

    // Cuts or lengthens; new bytes are 0. The text becomes private. An empty text takes ACodePage.
    void SetLength(std::size_t ALength, std::uint16_t ACodePage = cSystemCodePage);
    // The bytes for writing; null for the empty text. The text becomes private.
    char* UniqueData();
    // Says that the bytes are in another page, without converting them.
    void RelabelCodePage(std::uint16_t ACodePage);

    // Bytes are compared as they stand, whatever their code pages.
    friend bool operator==(const TByteText& ALeft, const TByteText& ARight) noexcept {
        return ALeft.View() == ARight.View();
    }
    friend std::strong_ordering operator<=>(const TByteText& ALeft, const TByteText& ARight) noexcept {
        return ALeft.View() <=> ARight.View();
    }
    friend QZ_API std::ostream& operator<<(std::ostream& AStream, const TByteText& AText);
    // How GoogleTest shows a text in its messages.
    friend QZ_API void PrintTo(const TByteText& AText, std::ostream* AStream);

protected:
    void AppendBytes(std::string_view AText, std::uint16_t ACodePage);
    static TByteText ForOverwrite(std::size_t ALength, std::uint16_t ACodePage);
    static TByteText Encode(std::u16string_view AText, std::uint16_t ACodePage,
                            platform::TComposing AComposing = platform::TComposing::Plain);
    static TByteText Recode(const TByteText& AText, std::uint16_t ACodePage);

private:
    detail::TStringBlock* Block() const noexcept { return detail::TStringBlock::Of(FData); }
    char* FData = nullptr;
};

static_assert(sizeof(TByteText) == sizeof(void*));

// The 8-bit string of one code page.
template <std::uint16_t Page> class TAnsiText : public TByteText {
public:
    static constexpr std::uint16_t cCodePage = Page;

    TAnsiText() noexcept = default;
    // The bytes as they stand, taken to be in this type's code page.
    template <CNarrowText T>
    explicit TAnsiText(const T& AText) : TByteText(detail::ViewOf<char>(AText), Page) {}
    TAnsiText(std::string_view AText, std::uint16_t ACodePage) : TByteText(AText, ACodePage) {}
    // Converts; characters that the code page lacks become their best fit or "?".
    explicit TAnsiText(const UnicodeString& AText) requires(Page != cNoCodePage)
        : TByteText(Encode(AText, Page)) {}
    // From another 8-bit string: the text, in this type's code page. RawByteString takes any as it is.
    template <std::uint16_t Other>
        requires(Other != Page)
    explicit(Page != cNoCodePage) TAnsiText(const TAnsiText<Other>& AText)
        : TByteText(Page == cNoCodePage ? static_cast<const TByteText&>(AText) : Recode(AText, Page)) {}

    // ALength bytes that are not set yet; they are written through UniqueData.
    static TAnsiText ForOverwrite(std::size_t ALength, std::uint16_t ACodePage = Page) {
        TAnsiText Result;
        static_cast<TByteText&>(Result) = TByteText::ForOverwrite(ALength, ACodePage);
        return Result;
    }

    // Text in another code page than the type's, composed or not; see platform/CodePages.h.
    static TAnsiText Encoded(std::u16string_view AText, std::uint16_t ACodePage,
                             platform::TComposing AComposing) {
        TAnsiText Result;
        static_cast<TByteText&>(Result) = Encode(AText, ACodePage, AComposing);
        return Result;
    }
    void SetLength(std::size_t ALength) { TByteText::SetLength(ALength, Page); }
    // An empty text takes the code page of the other.
    TAnsiText& operator+=(const TAnsiText& AText) {
        AppendBytes(AText.View(), AText.CodePage());
        return *this;
    }
    TAnsiText& operator+=(std::string_view AText) {
        AppendBytes(AText, Page);
        return *this;
    }
    friend TAnsiText operator+(TAnsiText ALeft, const TAnsiText& ARight) {
        ALeft += ARight;
        return ALeft;
    }
};

using AnsiString = TAnsiText<cSystemCodePage>;
using UTF8String = TAnsiText<cUtf8CodePage>;
using RawByteString = TAnsiText<cNoCodePage>;

} // namespace qz

template <std::uint16_t Page> struct std::hash<qz::TAnsiText<Page>> {
    std::size_t operator()(const qz::TAnsiText<Page>& AText) const noexcept {
        return std::hash<std::string_view>()(AText.View());
    }
};
