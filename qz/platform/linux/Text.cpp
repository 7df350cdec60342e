#include <qz/platform/Text.h>

#include <algorithm>
#include <atomic>
#include <memory>
#include <new>

#include <unicode/uchar.h>
#include <unicode/ucol.h>
#include <unicode/ustring.h>

#include <qz/platform/linux/Icu.h>
#include <qz/platform/linux/LocaleName.h>

namespace qz::platform {

namespace {

constexpr std::size_t cMaxLength = std::size_t{1} << 29;

using TCaseMapper = std::int32_t (*)(UChar*, std::int32_t, const UChar*, std::int32_t, const char*,
                                     UErrorCode*);

struct TCaseRules {
    std::string Locale;
    bool PlainAscii; // whether A to Z and a to z are each other's counterparts, which they are not in Turkish
};

TCaseRules AskCaseRules() {
    std::string Locale = detail::IcuLocaleName(detail::PosixLocaleName("LC_CTYPE"));
    const std::string Language = Locale.substr(0, Locale.find('_'));
    const bool DotlessI = Language == "tr" || Language == "az" || Language == "tur" || Language == "aze";
    return {std::move(Locale), !DotlessI};
}

// A value that is made at first use and kept for ever. Two threads may both make it; one of the two is kept.
// There is no lock that a fork could find held.
template <class T, T (*VMake)()> const T& MadeOnce() {
    constinit static std::atomic<const T*> Kept{nullptr};
    if (const T* Known = Kept.load(std::memory_order_acquire))
        return *Known;
    auto Made = std::make_unique<const T>(VMake());
    const T* Known = nullptr;
    return Kept.compare_exchange_strong(Known, Made.get(), std::memory_order_acq_rel) ? *Made.release()
                                                                                      : *Known;
}

const TCaseRules& CaseRules() {
    return MadeOnce<TCaseRules, AskCaseRules>();
}

std::string AskCollationLocale() {
    return detail::IcuLocaleName(detail::PosixLocaleName("LC_COLLATE"));
}

constexpr char16_t AsciiUpper(char16_t AChar) {
    return AChar >= u'a' && AChar <= u'z' ? static_cast<char16_t>(AChar - 32) : AChar;
}

constexpr char16_t AsciiLower(char16_t AChar) {
    return AChar >= u'A' && AChar <= u'Z' ? static_cast<char16_t>(AChar + 32) : AChar;
}

bool IsAscii(std::u16string_view AText) {
    char16_t All = 0;
    for (const char16_t Unit : AText)
        All |= Unit;
    return All < 0x80;
}

std::int32_t CheckedLength(std::u16string_view AText) {
    if (AText.size() > cMaxLength)
        throw std::bad_alloc();
    return static_cast<std::int32_t>(AText.size());
}

std::u16string MapCase(std::u16string_view AText, TCaseMapper AMapper) {
    const std::int32_t Length = CheckedLength(AText);
    const char* Locale = CaseRules().Locale.c_str();
    std::u16string Result(AText.size() + AText.size() / 16 + 4, u'\0');
    for (;;) {
        UErrorCode Status = U_ZERO_ERROR;
        const auto Capacity = static_cast<std::int32_t>(Result.size());
        const std::int32_t Needed = AMapper(Result.data(), Capacity, AText.data(), Length, Locale, &Status);
        const bool Fits = Needed <= Capacity;
        if (U_FAILURE(Status) && Status != U_BUFFER_OVERFLOW_ERROR)
            throw std::bad_alloc(); // all that is left to go wrong
        Result.resize(static_cast<std::size_t>(Needed));
        if (Fits)
            return Result;
    }
}

template <char16_t (*AsciiMap)(char16_t)>
std::u16string ChangeCase(std::u16string_view AText, TCaseMapper AMapper) {
    if (!IsAscii(AText) || !CaseRules().PlainAscii)
        return MapCase(AText, AMapper);
    std::u16string Result(AText);
    std::transform(Result.begin(), Result.end(), Result.begin(), AsciiMap);
    return Result;
}

char16_t OneUnit(UChar32 AMapped, char16_t AOriginal) {
    return AMapped <= 0xFFFF ? static_cast<char16_t>(AMapped) : AOriginal;
}

struct TCloseCollator {
    void operator()(UCollator* ACollator) const noexcept {
        const std::lock_guard Hold(detail::IcuLock());
        ucol_close(ACollator);
    }
};
using TCollator = std::unique_ptr<UCollator, TCloseCollator>;

TCollator OpenCollator(bool AIgnoreCase) {
    const std::string& Locale = MadeOnce<std::string, AskCollationLocale>();
    UErrorCode Status = U_ZERO_ERROR;
    std::unique_lock Hold(detail::IcuLock());
    UCollator* const Opened = ucol_open(Locale.c_str(), &Status);
    Hold.unlock();
    TCollator Result(Opened);
    if (U_FAILURE(Status))
        return nullptr;
    ucol_setStrength(Result.get(), AIgnoreCase ? UCOL_SECONDARY : UCOL_TERTIARY);
    return Result;
}

// One per thread and kind: making one is dear, and sharing one is not safe in every ICU.
const UCollator* Collator(bool AIgnoreCase) {
    if (AIgnoreCase) {
        thread_local const TCollator IgnoringCase = OpenCollator(true);
        return IgnoringCase.get();
    }
    thread_local const TCollator Exact = OpenCollator(false);
    return Exact.get();
}

} // namespace

std::u16string UpperCase(std::u16string_view AText) {
    return ChangeCase<AsciiUpper>(AText, u_strToUpper);
}

std::u16string LowerCase(std::u16string_view AText) {
    return ChangeCase<AsciiLower>(AText, u_strToLower);
}

char16_t UpperChar(char16_t AChar) noexcept {
    return AChar < 0x80 ? AsciiUpper(AChar) : OneUnit(u_toupper(AChar), AChar);
}

char16_t LowerChar(char16_t AChar) noexcept {
    return AChar < 0x80 ? AsciiLower(AChar) : OneUnit(u_tolower(AChar), AChar);
}

int CompareStrings(std::u16string_view A, std::u16string_view B, bool AIgnoreCase) {
    if (A == B)
        return 0;
    const std::int32_t LengthA = CheckedLength(A);
    const std::int32_t LengthB = CheckedLength(B);
    const UCollator* Rules = Collator(AIgnoreCase);
    if (Rules == nullptr)
        return A.compare(B); // ICU without its data
    return ucol_strcoll(Rules, A.data(), LengthA, B.data(), LengthB);
}

bool IsLetter(char16_t AChar) noexcept {
    return u_isalpha(AChar) != 0;
}

bool IsDigit(char16_t AChar) noexcept {
    return u_isdigit(AChar) != 0;
}

bool IsUpper(char16_t AChar) noexcept {
    return u_isUUppercase(AChar) != 0;
}

bool IsLower(char16_t AChar) noexcept {
    return u_isULowercase(AChar) != 0;
}

bool IsWhiteSpace(char16_t AChar) noexcept {
    return u_isUWhiteSpace(AChar) != 0;
}

} // namespace qz::platform
