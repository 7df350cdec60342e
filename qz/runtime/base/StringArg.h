// TStringArg: the parameter type of functions that only read a text.
//
//     int WordCount(const TStringArg& AText);
//     WordCount(u"no copy"); WordCount(Name); WordCount("UTF-8 is converted");
//
// It holds a view of 16-bit text without copying or counting. Narrow text is taken as UTF-8 and
// converted. It lives as long as the call: never keep one.
#pragma once

#include <qz/runtime/base/UnicodeString.h>

namespace qz {

class TStringArg {
public:
    TStringArg(const UnicodeString& AText) noexcept : FView(AText.View()), FSource(&AText) {}
    template <CWideText T> TStringArg(const T& AText) noexcept : FView(detail::ViewOf<char16_t>(AText)) {}
    template <std::size_t N> TStringArg(const TTextConstant<N>& AText) noexcept : FView(AText) {}
    template <CNarrowText T> TStringArg(const T& AText) : FOwn(AText), FView(FOwn.View()), FSource(&FOwn) {}
    template <CUtf8Text T> TStringArg(const T& AText) : FOwn(AText), FView(FOwn.View()), FSource(&FOwn) {}
    TStringArg(const TStringArg&) = delete;
    TStringArg& operator=(const TStringArg&) = delete;

    operator std::u16string_view() const noexcept { return FView; }
    std::u16string_view View() const noexcept { return FView; }
    // That text, where there is one.
    const UnicodeString* Source() const noexcept { return FSource; }
    // Shares the text that the argument was made from, where that is a UnicodeString.
    UnicodeString ToString() const { return FSource != nullptr ? *FSource : UnicodeString(FView); }

private:
    UnicodeString FOwn;
    std::u16string_view FView;
    const UnicodeString* FSource = nullptr;
};

} // namespace qz
