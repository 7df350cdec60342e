// UnicodeString: text in 16-bit units, one pointer wide, reference-counted, copied only when written to.
//
//     UnicodeString Name = "Zoë";                 // narrow text is UTF-8
//     UnicodeString Greeting = u"Hello " + Name + u'!';
//     std::string Narrow(Greeting);               // and back, as UTF-8
//     if (Greeting == "Hello Zoë!") ...
//
// Copies share one block and cost one atomic increment; the first change of a shared text makes it private.
// The characters are always followed by a terminator. Length, size and operator[] count 16-bit units from 0;
// the free functions of StringUtils.h count from 1, as their names have always done.
//
// Threads: different handles may be used by different threads, also when they share their text. One handle
// belongs to one thread at a time.
#pragma once

#include <compare>
#include <concepts>
#include <iosfwd>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>

#include <qz/runtime/base/StringBlock.h>
#include <qz/runtime/base/Utf.h>

namespace qz {

class UnicodeString;

// Text that converts implicitly to UnicodeString: 16-bit text, and narrow text as UTF-8.
template <class T>
concept CWideText =
    std::convertible_to<const T&, std::u16string_view> && !std::derived_from<T, UnicodeString> &&
    !std::same_as<T, std::nullptr_t>;
template <class T>
concept CNarrowText = std::convertible_to<const T&, std::string_view> && !CWideText<T> &&
    !std::derived_from<T, UnicodeString> && !std::same_as<T, std::nullptr_t>;
template <class T>
concept CUtf8Text = std::convertible_to<const T&, std::u8string_view> && !CWideText<T> && !CNarrowText<T> &&
    !std::derived_from<T, UnicodeString> && !std::same_as<T, std::nullptr_t>;

namespace detail {

// The characters of a text; empty for a null pointer.
template <class TChar, class T> std::basic_string_view<TChar> ViewOf(const T& AText) noexcept {
    if constexpr (std::is_pointer_v<T>)
        return AText == nullptr ? std::basic_string_view<TChar>() : std::basic_string_view<TChar>(AText);
    else
        return std::basic_string_view<TChar>(AText);
}

inline std::string_view NarrowView(std::u8string_view AText) noexcept {
    return {reinterpret_cast<const char*>(AText.data()), AText.size()};
}

} // namespace detail

// A text constant whose block lies in the program: a UnicodeString made from it neither allocates nor counts,
// and may live forever. So must the constant: it stands at namespace scope or is static, never on the stack.
//
//     inline constexpr TTextConstant SGreeting = u"Hello";
//     UnicodeString Text = SGreeting;
template <std::size_t N> struct TTextConstant {
    detail::TStringBlock Block{1200, 2, detail::TStringBlock::cImmortal, N - 1, N - 1};
    char16_t Text[N]{};

    consteval TTextConstant(const char16_t (&AText)[N]) { // NOLINT(google-explicit-constructor)
        for (std::size_t I = 0; I < N; ++I)
            Text[I] = AText[I];
    }
    constexpr operator std::u16string_view() const noexcept { return {Text, N - 1}; }
};

class QZ_API UnicodeString {
public:
    using value_type = char16_t;
    using const_iterator = const char16_t*;
    using iterator = const_iterator;

    // A reference to one character of a text that may be shared: an assignment makes the text private first.
    class TCharRef {
    public:
        operator char16_t() const noexcept { return FText.data()[FIndex]; }
        TCharRef& operator=(char16_t AChar) {
            FText.UniqueData()[FIndex] = AChar;
            return *this;
        }
        TCharRef& operator=(const TCharRef& AOther) { return *this = static_cast<char16_t>(AOther); }
        TCharRef(const TCharRef&) = default;

    private:
        friend class UnicodeString;
        TCharRef(UnicodeString& AText, std::size_t AIndex) noexcept : FText(AText), FIndex(AIndex) {}
        UnicodeString& FText;
        std::size_t FIndex;
    };

    UnicodeString() noexcept = default;
    UnicodeString(const UnicodeString& AOther) noexcept : FData(AOther.FData) {
        if (FData != nullptr)
            Block()->AddRef();
    }
    UnicodeString(UnicodeString&& AOther) noexcept : FData(std::exchange(AOther.FData, nullptr)) {}
    ~UnicodeString() {
        if (FData != nullptr)
            Block()->Release();
    }
    UnicodeString& operator=(const UnicodeString& AOther) noexcept {
        UnicodeString(AOther).Swap(*this);
        return *this;
    }
    UnicodeString& operator=(UnicodeString&& AOther) noexcept {
        UnicodeString(std::move(AOther)).Swap(*this);
        return *this;
    }

    // From text of any kind. A null pointer to characters gives the empty text. Ill-formed UTF-8 becomes
    // U+FFFD.
    template <CWideText T>
    UnicodeString(const T& AText) : UnicodeString(detail::ViewOf<char16_t>(AText), TMake{}) {}
    template <CNarrowText T>
    UnicodeString(const T& AText) : UnicodeString(detail::ViewOf<char>(AText), TMake{}) {}
    template <CUtf8Text T>
    UnicodeString(const T& AText)
        : UnicodeString(detail::NarrowView(detail::ViewOf<char8_t>(AText)), TMake{}) {}
    template <std::size_t N>
    UnicodeString(const TTextConstant<N>& AConstant) noexcept
        : FData(N > 1 ? const_cast<char16_t*>(AConstant.Text) : nullptr) {}
    UnicodeString(std::same_as<char16_t> auto AChar)
        : UnicodeString(std::u16string_view(&AChar, 1), TMake{}) {}
    UnicodeString(const char16_t* AText, std::size_t ALength)
        : UnicodeString(std::u16string_view(AText, ALength), TMake{}) {}
    UnicodeString(std::size_t ACount, char16_t AChar);
    UnicodeString(std::nullptr_t) = delete;
    // A text of that length whose characters are not set yet; they are written through UniqueData.
    static UnicodeString ForOverwrite(std::size_t ALength);

    // Queries.
    int Length() const noexcept { return FData == nullptr ? 0 : Block()->Length; }
    std::size_t size() const noexcept { return static_cast<std::size_t>(Length()); }
    std::size_t capacity() const noexcept {
        return FData == nullptr ? 0 : static_cast<std::size_t>(Block()->Capacity);
    }
    bool IsEmpty() const noexcept { return Length() == 0; }
    bool empty() const noexcept { return Length() == 0; }
    const char16_t* data() const noexcept { return FData == nullptr ? &cNothing : FData; }
    const char16_t* c_str() const noexcept { return data(); }
    const_iterator begin() const noexcept { return data(); }
    const_iterator end() const noexcept { return data() + Length(); }
    char16_t operator[](std::size_t AIndex) const noexcept { return data()[AIndex]; }
    // AIndex is less than the length; nothing checks that.
    TCharRef operator[](std::size_t AIndex) noexcept { return {*this, AIndex}; }
    operator std::u16string_view() const noexcept { return {data(), size()}; }
    std::u16string_view View() const noexcept { return {data(), size()}; }
    explicit operator std::u16string() const { return std::u16string(View()); }
    explicit operator std::string() const { return Utf16ToUtf8(View()); } // lone surrogates become U+FFFD
    // How many handles share the text: 0 for the empty text, -1 for a constant of the program.
    int RefCount() const noexcept {
        return FData == nullptr ? 0 : Block()->RefCount.load(std::memory_order_relaxed);
    }

    // Commands. Each makes the text private first; std::bad_alloc and std::length_error leave it as it was.
    void Clear() noexcept { UnicodeString().Swap(*this); }
    void Swap(UnicodeString& AOther) noexcept { std::swap(FData, AOther.FData); }
    // Cuts the text or lengthens it; new characters are U+0000.
    void SetLength(std::size_t ALength);
    void Reserve(std::size_t ACapacity);
    // The characters for writing, with a terminator that stays; null for the empty text.
    char16_t* UniqueData() {
        if (FData != nullptr && !Block()->IsUnique())
            MakeUnique(size());
        return FData;
    }
    // Appends, also a piece of the text itself.
    UnicodeString& Append(std::u16string_view AText) {
        if (!AppendInPlace(AText))
            AppendGrown(AText);
        return *this;
    }
    UnicodeString& Append(std::size_t ACount, char16_t AChar);
    // Appends room for ACount characters and returns its start; the caller writes all of them.
    char16_t* AppendRoom(std::size_t ACount);

    UnicodeString& operator+=(const UnicodeString& AText) {
        if (FData == nullptr)
            return *this = AText;
        return Append(AText.View());
    }
    template <CWideText T> UnicodeString& operator+=(const T& AText) {
        return Append(detail::ViewOf<char16_t>(AText));
    }
    template <CNarrowText T> UnicodeString& operator+=(const T& AText) {
        return AppendUtf8(detail::ViewOf<char>(AText));
    }
    template <CUtf8Text T> UnicodeString& operator+=(const T& AText) {
        return AppendUtf8(detail::NarrowView(detail::ViewOf<char8_t>(AText)));
    }
    UnicodeString& operator+=(const TCharRef& AChar) { return *this += static_cast<char16_t>(AChar); }
    UnicodeString& operator+=(std::same_as<char16_t> auto AChar) {
        const int Old = Length();
        if (FData == nullptr || !Block()->IsUnique() || Old == Block()->Capacity) {
            const char16_t Copy = AChar; // so that the other way keeps the character in a register
            AppendGrown({&Copy, 1});
            return *this;
        }
        const char16_t Pair[2] = {AChar, u'\0'}; // one store instead of two
        std::char_traits<char16_t>::copy(FData + Old, Pair, 2);
        Block()->Length = Old + 1;
        return *this;
    }

    // A new text from two; a left side that is about to go is appended to in place.
    template <class T>
        requires requires(UnicodeString& S, const T& V) {
            S += V;
        }
    friend UnicodeString operator+(UnicodeString&& ALeft, const T& ARight) {
        ALeft += ARight;
        return std::move(ALeft);
    }
    friend UnicodeString operator+(const UnicodeString& ALeft, const UnicodeString& ARight) {
        return Concat(ALeft.View(), ARight.View());
    }
    template <CWideText T> friend UnicodeString operator+(const UnicodeString& ALeft, const T& ARight) {
        return Concat(ALeft.View(), detail::ViewOf<char16_t>(ARight));
    }
    friend UnicodeString operator+(const UnicodeString& ALeft, std::same_as<char16_t> auto ARight) {
        return Concat(ALeft.View(), {&ARight, 1});
    }
    friend UnicodeString operator+(const UnicodeString& ALeft, const TCharRef& ARight) {
        return ALeft + static_cast<char16_t>(ARight);
    }
    template <class T>
        requires CNarrowText<T> || CUtf8Text<T>
    friend UnicodeString operator+(const UnicodeString& ALeft, const T& ARight) {
        UnicodeString Result(ALeft);
        Result += ARight;
        return Result;
    }
    template <CWideText T> friend UnicodeString operator+(const T& ALeft, const UnicodeString& ARight) {
        return Concat(detail::ViewOf<char16_t>(ALeft), ARight.View());
    }
    friend UnicodeString operator+(std::same_as<char16_t> auto ALeft, const UnicodeString& ARight) {
        return Concat({&ALeft, 1}, ARight.View());
    }
    template <class T>
        requires CNarrowText<T> || CUtf8Text<T>
    friend UnicodeString operator+(const T& ALeft, const UnicodeString& ARight) {
        return UnicodeString(ALeft) += ARight;
    }

    // Comparison by 16-bit units, as std::u16string compares.
    friend bool operator==(const UnicodeString& ALeft, const UnicodeString& ARight) noexcept {
        return ALeft.FData == ARight.FData || ALeft.View() == ARight.View();
    }
    friend std::strong_ordering operator<=>(const UnicodeString& ALeft,
                                            const UnicodeString& ARight) noexcept {
        return ALeft.View() <=> ARight.View();
    }
    template <CWideText T> friend bool operator==(const UnicodeString& ALeft, const T& ARight) noexcept {
        return ALeft.View() == detail::ViewOf<char16_t>(ARight);
    }
    template <CWideText T>
    friend std::strong_ordering operator<=>(const UnicodeString& ALeft, const T& ARight) noexcept {
        return ALeft.View() <=> detail::ViewOf<char16_t>(ARight);
    }
    template <CNarrowText T> friend bool operator==(const UnicodeString& ALeft, const T& ARight) noexcept {
        return CompareUtf8(ALeft.View(), detail::ViewOf<char>(ARight)) == 0;
    }
    template <CNarrowText T>
    friend std::strong_ordering operator<=>(const UnicodeString& ALeft, const T& ARight) noexcept {
        return CompareUtf8(ALeft.View(), detail::ViewOf<char>(ARight));
    }
    template <CUtf8Text T> friend bool operator==(const UnicodeString& ALeft, const T& ARight) noexcept {
        return CompareUtf8(ALeft.View(), detail::NarrowView(detail::ViewOf<char8_t>(ARight))) == 0;
    }
    template <CUtf8Text T>
    friend std::strong_ordering operator<=>(const UnicodeString& ALeft, const T& ARight) noexcept {
        return CompareUtf8(ALeft.View(), detail::NarrowView(detail::ViewOf<char8_t>(ARight)));
    }

    // Writes the text as UTF-8.
    friend QZ_API std::ostream& operator<<(std::ostream& AStream, const UnicodeString& AText);
    // How GoogleTest shows a text in its messages.
    friend QZ_API void PrintTo(const UnicodeString& AText, std::ostream* AStream);

    // One text from two pieces, with one allocation.
    static UnicodeString Concat(std::u16string_view ALeft, std::u16string_view ARight);

private:
    struct TMake {};
    UnicodeString(std::u16string_view AText, TMake);
    UnicodeString(std::string_view AText, TMake);

    detail::TStringBlock* Block() const noexcept { return detail::TStringBlock::Of(FData); }
    bool AppendInPlace(std::u16string_view AText) noexcept {
        if (FData == nullptr || !Block()->IsUnique() || capacity() - size() < AText.size())
            return false;
        char16_t* End =
            std::char_traits<char16_t>::copy(FData + size(), AText.data(), AText.size()) + AText.size();
        *End = u'\0';
        Block()->Length += static_cast<int>(AText.size());
        return true;
    }
    void AppendGrown(std::u16string_view AText);
    UnicodeString& AppendUtf8(std::string_view AText);
    void MakeUnique(std::size_t ACapacity);

    static constexpr char16_t cNothing = u'\0';
    char16_t* FData = nullptr;
};

static_assert(sizeof(UnicodeString) == sizeof(void*));
// The text of a constant follows its block as that of a block on the heap does.
static_assert(offsetof(TTextConstant<2>, Text) == sizeof(detail::TStringBlock));

// String types of their own with the same content, so that reflection and overloads tell them apart.
// WideString is the one at the borders of the platform.
template <class TTag> class TStringKind : public UnicodeString {
public:
    using UnicodeString::UnicodeString;
    TStringKind() noexcept = default;
    TStringKind(const UnicodeString& AText) noexcept : UnicodeString(AText) {}
    TStringKind(UnicodeString&& AText) noexcept : UnicodeString(std::move(AText)) {}
};
using WideString = TStringKind<struct TWideStringTag>;

// The UTF-8 form of a text.
inline std::string ToUtf8(std::u16string_view AText) {
    return Utf16ToUtf8(AText);
}

} // namespace qz

template <class TTag> struct std::hash<qz::TStringKind<TTag>> : std::hash<std::u16string_view> {};

template <> struct std::hash<qz::UnicodeString> {
    std::size_t operator()(const qz::UnicodeString& AText) const noexcept {
        return std::hash<std::u16string_view>()(AText);
    }
};
