// TStrings: lines of text, each with an object beside it; what all lists of text can do. TStringList is the
// usual one.
//
//     void Show(TStrings& ALines) {
//         ALines.SetText(u"one\r\ntwo");
//         ALines.Add(u"colour=red");
//         ALines.Values(u"colour");            // "red"
//         ALines.CommaText();                  // one,two,colour=red
//     }
//
// Indexes count from 0; one out of range raises EStringListError, "List index out of bounds (%d)". A list
// belongs to one thread at a time.
#pragma once

#include <functional>
#include <iterator>

#include <qz/runtime/base/DynArray.h>
#include <qz/runtime/base/StringArg.h>
#include <qz/runtime/lists/ListTypes.h>
#include <qz/runtime/objects/Persistent.h>
#include <qz/runtime/text/Encoding.h>

namespace qz {

using TNotifyEvent = std::function<void(TObject* ASender)>;

inline constexpr TTextConstant SDuplicateString = u"String list does not allow duplicates";
inline constexpr TTextConstant SSortedListError = u"Operation not allowed on sorted list";

class QZ_API TStrings : public TPersistent {
    QZ_CLASS(TStrings, TPersistent)

public:
    class TIterator {
    public:
        using iterator_concept = std::random_access_iterator_tag;
        using iterator_category = std::input_iterator_tag; // since the lines come as values
        using value_type = UnicodeString;
        using difference_type = std::ptrdiff_t;
        using pointer = void;
        using reference = UnicodeString;

        TIterator() noexcept = default;
        TIterator(const TStrings& AList, int AIndex) noexcept : FList(&AList), FIndex(AIndex) {}
        UnicodeString operator*() const { return FList->Strings(FIndex); }
        TIterator& operator++() noexcept {
            ++FIndex;
            return *this;
        }
        TIterator operator++(int) noexcept { return {*FList, FIndex++}; }
        TIterator& operator--() noexcept { return *this -= 1; }
        TIterator operator--(int) noexcept { return {*FList, FIndex--}; }
        TIterator& operator+=(std::ptrdiff_t ACount) noexcept {
            FIndex += static_cast<int>(ACount);
            return *this;
        }
        TIterator& operator-=(std::ptrdiff_t ACount) noexcept { return *this += -ACount; }
        UnicodeString operator[](std::ptrdiff_t AOffset) const { return *(*this + AOffset); }
        friend TIterator operator+(TIterator AFrom, std::ptrdiff_t ACount) noexcept {
            return AFrom += ACount;
        }
        friend TIterator operator+(std::ptrdiff_t ACount, TIterator AFrom) noexcept {
            return AFrom += ACount;
        }
        friend TIterator operator-(TIterator AFrom, std::ptrdiff_t ACount) noexcept {
            return AFrom -= ACount;
        }
        friend std::ptrdiff_t operator-(const TIterator& ALeft, const TIterator& ARight) noexcept {
            return std::ptrdiff_t{ALeft.FIndex} - ARight.FIndex;
        }
        friend bool operator==(const TIterator& ALeft, const TIterator& ARight) noexcept {
            return ALeft.FIndex == ARight.FIndex;
        }
        friend auto operator<=>(const TIterator& ALeft, const TIterator& ARight) noexcept {
            return ALeft.FIndex <=> ARight.FIndex;
        }

    private:
        const TStrings* FList = nullptr;
        int FIndex = 0;
    };

    // What each list class implements.
    virtual int Count() const = 0;
    virtual UnicodeString Strings(int AIndex) const = 0;
    virtual TObject* Objects(int AIndex) const = 0;
    virtual void SetString(int AIndex, const UnicodeString& AText) = 0;
    virtual void SetObject(int AIndex, TObject* AObject) = 0;
    // AIndex may be the count, for the end.
    virtual void InsertObject(int AIndex, const UnicodeString& AText, TObject* AObject) = 0;
    virtual void Delete(int AIndex) = 0;
    virtual void Clear() = 0;

    // Queries.
    UnicodeString operator[](int AIndex) const { return Strings(AIndex); }
    TIterator begin() const noexcept { return {*this, 0}; }
    TIterator end() const { return {*this, Count()}; }
    bool IsEmpty() const { return Count() == 0; }
    // The first line that is equal as the list compares, with that name, or with that object; -1 for none.
    virtual int IndexOf(const TStringArg& AText) const;
    virtual int IndexOfName(const TStringArg& AName) const;
    int IndexOfObject(const TObject* AObject) const;
    // The same lines in the same order, compared unit by unit.
    bool Equals(const TStrings& AOther) const;
    TDynArray<UnicodeString> ToStringArray() const;

    // A line "name=value": the part before the first separator, empty without one; the part after it, empty
    // without one; the value of the first line of that name, empty without one.
    UnicodeString Names(int AIndex) const;
    UnicodeString ValueFromIndex(int AIndex) const;
    UnicodeString Values(const TStringArg& AName) const;
    // Changes the value of the first line of that name, or adds such a line; an empty value deletes it.
    void SetValue(const TStringArg& AName, const TStringArg& AValue);
    // Changes the value of the line and keeps its name; an empty value deletes the line.
    void SetValueFromIndex(int AIndex, const TStringArg& AValue);
    void AddPair(const TStringArg& AName, const TStringArg& AValue, TObject* AObject = nullptr);

    // Commands.
    // The index of the new line.
    int Add(const UnicodeString& AText) { return AddObject(AText, nullptr); }
    virtual int AddObject(const UnicodeString& AText, TObject* AObject);
    void AddStrings(const TStrings& AStrings);
    void AddStrings(const TDynArray<UnicodeString>& AStrings);
    void Insert(int AIndex, const UnicodeString& AText) { InsertObject(AIndex, AText, nullptr); }
    virtual void Exchange(int AIndex1, int AIndex2);
    // Takes the line and its object to the place ANewIndex.
    virtual void Move(int ACurIndex, int ANewIndex);
    // Takes the lines, objects and settings of another TStrings, but not the ownership of the objects: of two
    // lists that share objects one at the most may own them.
    void Assign(TPersistent* ASource) override;
    // Changes between the two are notified as one. Calls nest.
    void BeginUpdate();
    void EndUpdate();

    // All lines, each with LineBreak after it. Read back, CR LF, LF and CR each end a line, or LineBreak
    // alone when it is none of these; the last line needs no end.
    UnicodeString Text() const;
    void SetText(const TStringArg& AText);
    // All lines in one, with commas between, for spreadsheets and settings. A line with a blank, comma or
    // quote (") in it is quoted. Read back, commas and blanks outside quotes both separate.
    UnicodeString CommaText() const;
    void SetCommaText(const TStringArg& AText);
    // The same with Delimiter and QuoteChar; with StrictDelimiter blanks neither separate nor need quotes.
    UnicodeString DelimitedText() const;
    void SetDelimitedText(const TStringArg& AText);

    // Reads text in the encoding of its byte order mark, in AEncoding without one; raises EFOpenError.
    virtual void LoadFromFile(const TStringArg& AFileName, const TEncoding& AEncoding = TEncoding::UTF8());
    // Writes UTF-8 without a byte order mark, as a whole or not at all; raises EFCreateError.
    virtual void SaveToFile(const TStringArg& AFileName) const;
    // The same in another encoding, after its mark if it has one.
    void SaveToFile(const TStringArg& AFileName, const TEncoding& AEncoding) const;

    // Settings.
    char16_t Delimiter() const noexcept { return FDelimiter; } // a comma at first
    void SetDelimiter(char16_t AValue) noexcept { FDelimiter = AValue; }
    char16_t QuoteChar() const noexcept { return FQuoteChar; } // U+0022 at first; U+0000 for no quoting
    void SetQuoteChar(char16_t AValue) noexcept { FQuoteChar = AValue; }
    bool StrictDelimiter() const noexcept { return FStrictDelimiter; }
    void SetStrictDelimiter(bool AValue) noexcept { FStrictDelimiter = AValue; }
    char16_t NameValueSeparator() const noexcept { return FNameValueSeparator; } // "=" at first
    void SetNameValueSeparator(char16_t AValue) noexcept { FNameValueSeparator = AValue; }
    // CR LF at first, on every system, so that texts and files are the same everywhere.
    const UnicodeString& LineBreak() const noexcept { return FLineBreak; }
    void SetLineBreak(const UnicodeString& AValue) { FLineBreak = AValue; }
    // Whether LineBreak stands after the last line too; at first it does.
    bool TrailingLineBreak() const noexcept { return FTrailingLineBreak; }
    void SetTrailingLineBreak(bool AValue) noexcept { FTrailingLineBreak = AValue; }
    // Whether lines compare by the rules of the user's language, as at first, or by their units. Those rules
    // pass over control characters and characters without width, so that "a" and "a\1" are equal.
    bool UseLocale() const noexcept { return FUseLocale; }
    virtual void SetUseLocale(bool AValue) { FUseLocale = AValue; }

protected:
    TStrings() = default;

    // Negative, zero or positive; ignores case here.
    virtual int CompareStrings(std::u16string_view ALeft, std::u16string_view ARight) const;
    // Called at the first BeginUpdate and the last EndUpdate.
    virtual void SetUpdateState(bool) {}
    int UpdateCount() const noexcept { return FUpdateCount; }
    [[noreturn]] static void IndexError(int AIndex);

private:
    void Save(const TStringArg& AFileName, const TBytes& AMark, const TEncoding& AEncoding) const;
    UnicodeString Join(char16_t ADelimiter, char16_t AQuote, bool AStrict) const;
    void Split(std::u16string_view AText, char16_t ADelimiter, char16_t AQuote, bool AStrict);

    UnicodeString FLineBreak = u"\r\n";
    int FUpdateCount = 0;
    char16_t FDelimiter = u',';
    char16_t FQuoteChar = u'"';
    char16_t FNameValueSeparator = u'=';
    bool FStrictDelimiter = false;
    bool FTrailingLineBreak = true;
    bool FUseLocale = true;
};

} // namespace qz
