// TStringArg: the parameter type of functions that only read a text.
//
//     int WordCount(const TStringArg& AText);
//     WordCount(u"no copy"); WordCount(Name); WordCount("UTF-8 is converted");
//
// It holds a view of 16-bit text as it stands, without a copy or a count; narrow text is taken as UTF-8 and
// converted. It lives as long as the call: never keep one.
#pragma once

#include "runtime/text/UnicodeString.h"

namespace qz {

class TStringArg {
public:
    TStringArg(const UnicodeString& AText) noexcept : FView(AText.View()) {}
    template <CWideText T> TStringArg(const T& AText) noexcept : FView(WideView(AText)) {}
    template <std::size_t N> TStringArg(const TTextConstant<N>& AText) noexcept : FView(AText) {}
    template <class T>
        requires CNarrowText<T> || CUtf8Text<T> TStringArg(const T& AText)
            : FOwn(AText),
              FView(FOwn.View()) {}
        TStringArg(const TStringArg&) = delete;
        TStringArg& operator=(const TStringArg&) = delete;

        operator std::u16string_view() const noexcept {
            return FView;
        }
        std::u16string_view View() const noexcept {
            return FView;
        }
        UnicodeString ToString() const {
            return FOwn.empty() ? UnicodeString(FView) : FOwn;
        }

    private:
        template <class T> static std::u16string_view WideView(const T& AText) noexcept {
            if constexpr (std::is_pointer_v<T>)
                return AText == nullptr ? std::u16string_view() : std::u16string_view(AText);
            else
                return AText;
        }

        UnicodeString FOwn;
        std::u16string_view FView;
};

} // namespace qz
