// TQzLogText: the parameter type of the texts of messages.
//
//     void Show(const TQzLogText& AText);
//     Show(u"no copy"); Show(Name); Show("UTF-8, converted when it is read");
//
// It refers to a text of any kind, and converts or formats it only when ToString is called. So a message that
// no appender takes costs no conversion. It lives as long as the call: never keep one.
#pragma once

#include <cstdint>
#include <string_view>
#include <type_traits>

#include <qz/runtime/base/StringArg.h>
#include <qz/runtime/base/VarRec.h>

namespace qz {

class QZ_API TQzLogText {
public:
    TQzLogText(const UnicodeString& AText) noexcept : FData(&AText), FKind(TKind::Text) {}
    TQzLogText(const TStringArg& AText) noexcept
        : TQzLogText(AText.Source() != nullptr ? TQzLogText(*AText.Source()) : TQzLogText(AText.View())) {}
    template <CWideText T> TQzLogText(const T& AText) noexcept : FKind(TKind::Wide) {
        Refer<char16_t>(AText);
    }
    template <std::size_t N> TQzLogText(const TTextConstant<N>& AText) noexcept : FKind(TKind::Wide) {
        Refer<char16_t>(std::u16string_view(AText));
    }
    template <CUtf8Text T> TQzLogText(const T& AText) noexcept : FKind(TKind::Utf8) { Refer<char8_t>(AText); }
    // Text with a code page of its own is converted by its own type.
    template <CNarrowText T> TQzLogText(const T& AText) noexcept : FKind(TKind::Other) {
        if constexpr (detail::CUtf8Argument<T>) {
            FKind = TKind::Utf8;
            Refer<char>(AText);
        } else {
            FData = &AText;
            FMore.Convert = [](const void* AFrom) { return UnicodeString(*static_cast<const T*>(AFrom)); };
        }
    }
    // A pattern with its arguments, as Format takes them. Both live longer than this object.
    TQzLogText(const TQzLogText& APattern, const TVarRecs& AArgs) noexcept : TQzLogText(APattern) {
        FArgs = &AArgs;
    }

    // Raises EConvertError for a pattern that does not fit its arguments.
    UnicodeString ToString() const;
    // Raises what ToString would raise for the pattern and its arguments, without building the text.
    void Check() const {
        if (FArgs != nullptr)
            CheckFor(*FArgs);
    }
    // The same for this text as the pattern of those arguments.
    void CheckFor(const TVarRecs& AArgs) const;
    // The text itself where it is a UnicodeString that needs no formatting; otherwise null.
    const UnicodeString* Source() const noexcept {
        return FKind == TKind::Text && FArgs == nullptr ? static_cast<const UnicodeString*>(FData) : nullptr;
    }
    bool HasArgs() const noexcept { return FArgs != nullptr; }

private:
    enum class TKind : std::uint8_t { Text, Wide, Utf8, Other };
    // Marks a terminated text whose length is counted when it is read.
    static constexpr auto cUncounted = static_cast<std::size_t>(-1);
    template <class TChar, class T> void Refer(const T& AText) noexcept {
        if constexpr (std::is_pointer_v<std::decay_t<T>>) {
            const TChar* const First = AText;
            FData = First;
            FMore.Size = First != nullptr ? cUncounted : 0;
        } else {
            const std::basic_string_view<TChar> View(AText);
            FData = View.data();
            FMore.Size = View.size();
        }
    }
    template <class TChar> std::basic_string_view<TChar> View() const noexcept {
        const auto* const First = static_cast<const TChar*>(FData);
        return FMore.Size == cUncounted ? std::basic_string_view<TChar>(First)
                                        : std::basic_string_view<TChar>(First, FMore.Size);
    }
    TQzLogText(const TQzLogText&) = default;
    TQzLogText& operator=(const TQzLogText&) = default;
    UnicodeString Plain() const;

    const void* FData = nullptr;
    union {
        std::size_t Size;                            // of Wide and Utf8, in characters
        UnicodeString (*Convert)(const void* AFrom); // of Other
    } FMore{.Size = 0};
    const TVarRecs* FArgs = nullptr;
    TKind FKind;
};

} // namespace qz
