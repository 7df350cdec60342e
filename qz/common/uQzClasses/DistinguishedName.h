// TQzDN: a distinguished name (X.500, as in the subject of a certificate) as a list of names with values. It
// is read from its text form and written to it.
//
//     TQzDN Subject = u"CN=Anna, OU=Sales, O=\"Smith, Jones\"";
//     Subject.Values(u"ou");                      // "Sales"
//     Subject.Add(u"C", u"DE");
//     UnicodeString Text = Subject;               // CN=Anna,OU=Sales,O=Smith\, Jones,C=DE
//     for (const TQzRDN& Entry : Subject)
//         Show(Entry.FName, Entry.FValue);
//
// Entries stay in the order of the text, where commas separate them. Comparison ignores the order of the
// entries and the case of letters, 16-bit unit by unit; only a to z equal A to Z. Copies share their entries:
// a change by SetName or SetValue appears in all copies, until one of them adds or deletes. Different threads
// may use different copies if none changes a shared entry.
#pragma once

#include <compare>
#include <concepts>
#include <functional>
#include <utility>

#include <qz/runtime/base/DynArray.h>
#include <qz/runtime/base/StringArg.h>

namespace qz {

class TStrings;

struct TQzRDN {
    UnicodeString FName;
    UnicodeString FValue;

    TQzRDN() noexcept = default;
    TQzRDN(UnicodeString AName, UnicodeString AValue) noexcept
        : FName(std::move(AName)),
          FValue(std::move(AValue)) {}
};

class QZ_API TQzDN {
public:
    using value_type = TQzRDN;
    using const_iterator = const TQzRDN*;
    using iterator = const_iterator;

    TQzDN() noexcept = default;
    // As ParseDN.
    template <class T>
        requires(!std::derived_from<T, TQzDN> && std::convertible_to<const T&, UnicodeString>)
    TQzDN(const T& AText) { ParseDN(AText); }
    // As Load.
    explicit TQzDN(const TStrings& AStrings);
    static TQzDN Empty() noexcept { return GetEmpty(); }
    static TQzDN GetEmpty() noexcept { return {}; }

    // Replaces the content. A name ends at "=" and is trimmed; blanks before a value are skipped; a value
    // ends at a comma. In a value, "\" escapes a blank and each of "#+,/;<=>\. With two hex digits it gives
    // the character of that number, 1 to 255; any other two characters after it stand for themselves. A value
    // in quotes may contain commas, but of two in a row the second ends it. Other quotes are dropped. A text
    // without "=" is a name with an empty value. Raises EQzTextParserEOF, "Unexpected EOF", for a quote that
    // is not closed and an escape that is cut off; the content then stays as it was.
    void ParseDN(const TStringArg& AText);
    // The text form, without blanks around commas. Special characters, "#" at the start, and blanks at both
    // ends of a value are escaped; line feed and carriage return become \0A and \0D. The character after
    // blanks within a value is never escaped, so the value "a ,b" does not read back.
    operator UnicodeString() const;

    int Count() const noexcept { return static_cast<int>(FData.Length()); }
    const TQzRDN* begin() const noexcept { return FData.begin(); }
    const TQzRDN* end() const noexcept { return FData.end(); }
    std::size_t size() const noexcept { return FData.Length(); }
    bool empty() const noexcept { return FData.IsEmpty(); }

    // An entry by its index, from 0; nothing checks it.
    const UnicodeString& Name(int AIndex) const noexcept { return GetName(AIndex); }
    const UnicodeString& GetName(int AIndex) const noexcept { return At(AIndex).FName; }
    void SetName(int AIndex, const UnicodeString& AName) noexcept { At(AIndex).FName = AName; }
    const UnicodeString& Value(int AIndex) const noexcept { return GetValue(AIndex); }
    const UnicodeString& GetValue(int AIndex) const noexcept { return At(AIndex).FValue; }
    void SetValue(int AIndex, const UnicodeString& AValue) noexcept { At(AIndex).FValue = AValue; }

    // The values of all entries of that name, compared as SameText does, with the separator between them.
    UnicodeString ValuesFromName(const TStringArg& AName, char16_t ASeparator) const;
    UnicodeString Values(const TStringArg& AName) const { return GetValueFromName(AName); }
    UnicodeString GetValueFromName(const TStringArg& AName) const { return ValuesFromName(AName, u'.'); }

    // Each gives the new count. An index out of range deletes nothing.
    int Add(const UnicodeString& AName, const UnicodeString& AValue);
    int Delete(int AIndex);
    friend TQzDN operator+(TQzDN ALeft, const TQzRDN& ARight) {
        ALeft.Add(ARight.FName, ARight.FValue);
        return ALeft;
    }

    // Lines "name=value" without escapes: added to a list; read from one, trimmed, in place of the content;
    // joined by a separator.
    void Save(TStrings& AStrings) const;
    void Load(const TStrings& AStrings);
    UnicodeString Text(const TStringArg& ASeparator) const;

    // Equal names have the same number of each line "name=value". The order is that of the sorted lines.
    friend QZ_API bool operator==(const TQzDN& ALeft, const TQzDN& ARight);
    friend QZ_API std::weak_ordering operator<=>(const TQzDN& ALeft, const TQzDN& ARight);
    // The text is parsed first.
    template <class T>
        requires(!std::derived_from<T, TQzDN> && std::convertible_to<const T&, UnicodeString>)
    friend bool operator==(const TQzDN& ALeft, const T& ARight) { return ALeft == TQzDN(ARight); }
    template <class T>
        requires(!std::derived_from<T, TQzDN> && std::convertible_to<const T&, UnicodeString>)
    friend std::weak_ordering operator<=>(const TQzDN& ALeft, const T& ARight) {
        return ALeft <=> TQzDN(ARight);
    }
    // The same for equal names.
    std::size_t Hash() const noexcept;

private:
    TQzRDN& At(int AIndex) const noexcept { return FData[static_cast<std::size_t>(AIndex)]; }

    TDynArray<TQzRDN> FData;
};

} // namespace qz

template <> struct std::hash<qz::TQzDN> {
    std::size_t operator()(const qz::TQzDN& AName) const noexcept { return AName.Hash(); }
};
