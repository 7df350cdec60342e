#include <qz/runtime/lists/Strings.h>

#include <algorithm>

#include <qz/platform/Files.h>
#include <qz/runtime/base/StringUtils.h>
#include <qz/runtime/objects/Describe.h>
#include <qz/runtime/objects/Exceptions.h>
#include <qz/runtime/objects/TypeNames.h>
#include <qz/runtime/streams/FileStream.h>

namespace qz {
namespace {

using TView = std::u16string_view;

constexpr bool IsBlank(char16_t AChar) noexcept {
    return AChar <= u' ';
}

// Holds the changes of a block together, also when it is left by an exception.
class TUpdate {
public:
    explicit TUpdate(TStrings& AList) : FList(AList) { FList.BeginUpdate(); }
    TUpdate(const TUpdate&) = delete;
    TUpdate& operator=(const TUpdate&) = delete;
    ~TUpdate() noexcept(false) {
        if (std::uncaught_exceptions() == FExceptions)
            FList.EndUpdate();
        else
            EndQuietly();
    }

private:
    void EndQuietly() noexcept {
        try {
            FList.EndUpdate();
        } catch (...) { // NOLINT(bugprone-empty-catch): another exception is on its way already
        }
    }
    TStrings& FList;
    int FExceptions = std::uncaught_exceptions();
};

// Takes one line from the start of AText, without its end.
TView TakeLine(TView& AText) noexcept {
    const std::size_t End = std::min(AText.find_first_of(u"\r\n"), AText.size());
    const TView Line = AText.substr(0, End);
    AText.remove_prefix(End);
    if (!AText.empty())
        AText.remove_prefix(AText.starts_with(u"\r\n") ? 2 : 1);
    return Line;
}

// Takes the text up to a line break of one's own, without it.
TView TakeUpTo(TView& AText, TView ABreak) noexcept {
    const std::size_t End = std::min(AText.find(ABreak), AText.size());
    const TView Line = AText.substr(0, End);
    AText.remove_prefix(std::min(End + ABreak.size(), AText.size()));
    return Line;
}

void SkipBlanks(TView& AText) noexcept {
    while (!AText.empty() && IsBlank(AText.front()))
        AText.remove_prefix(1);
}

} // namespace

QZ_REGISTER_TYPES(TStrings);

constinit const TClassRec TStrings::ClassRec = DescribeClass<TStrings>(u"TStrings", {.Unit = u"System"});

void TStrings::IndexError(int AIndex) {
    throw EStringListError(SListIndexError, {AIndex});
}

int TStrings::CompareStrings(TView ALeft, TView ARight) const {
    return FUseLocale ? AnsiCompareText(ALeft, ARight) : CompareText(ALeft, ARight);
}

int TStrings::IndexOf(const TStringArg& AText) const {
    const int Last = Count();
    for (int I = 0; I < Last; ++I)
        if (CompareStrings(Strings(I), AText) == 0)
            return I;
    return -1;
}

int TStrings::IndexOfName(const TStringArg& AName) const {
    const int Last = Count();
    for (int I = 0; I < Last; ++I) {
        const UnicodeString Line = Strings(I);
        const std::size_t Place = Line.View().find(FNameValueSeparator);
        if (Place != TView::npos && CompareStrings(Line.View().substr(0, Place), AName) == 0)
            return I;
    }
    return -1;
}

int TStrings::IndexOfObject(const TObject* AObject) const {
    const int Last = Count();
    for (int I = 0; I < Last; ++I)
        if (Objects(I) == AObject)
            return I;
    return -1;
}

bool TStrings::Equals(const TStrings& AOther) const {
    const int Last = Count();
    if (Last != AOther.Count())
        return false;
    for (int I = 0; I < Last; ++I)
        if (Strings(I) != AOther.Strings(I))
            return false;
    return true;
}

TDynArray<UnicodeString> TStrings::ToStringArray() const {
    TDynArray<UnicodeString> Result(static_cast<std::size_t>(Count()));
    for (std::size_t I = 0; I < Result.size(); ++I)
        Result[I] = Strings(static_cast<int>(I));
    return Result;
}

UnicodeString TStrings::Names(int AIndex) const {
    const UnicodeString Line = Strings(AIndex);
    const std::size_t Place = Line.View().find(FNameValueSeparator);
    return Place == TView::npos ? UnicodeString() : UnicodeString(Line.View().substr(0, Place));
}

UnicodeString TStrings::ValueFromIndex(int AIndex) const {
    const UnicodeString Line = Strings(AIndex);
    const std::size_t Place = Line.View().find(FNameValueSeparator);
    return Place == TView::npos ? UnicodeString() : UnicodeString(Line.View().substr(Place + 1));
}

UnicodeString TStrings::Values(const TStringArg& AName) const {
    const int Index = IndexOfName(AName);
    return Index < 0 ? UnicodeString() : ValueFromIndex(Index);
}

void TStrings::SetValue(const TStringArg& AName, const TStringArg& AValue) {
    const int Index = IndexOfName(AName);
    if (Index < 0) {
        if (!AValue.View().empty())
            AddPair(AName, AValue);
    } else if (AValue.View().empty()) {
        Delete(Index);
    } else {
        SetString(Index, AName.ToString() + FNameValueSeparator + AValue.View());
    }
}

void TStrings::SetValueFromIndex(int AIndex, const TStringArg& AValue) {
    if (AValue.View().empty())
        Delete(AIndex);
    else
        SetString(AIndex, Names(AIndex) + FNameValueSeparator + AValue.View());
}

void TStrings::AddPair(const TStringArg& AName, const TStringArg& AValue, TObject* AObject) {
    AddObject(AName.ToString() + FNameValueSeparator + AValue.View(), AObject);
}

int TStrings::AddObject(const UnicodeString& AText, TObject* AObject) {
    const int Result = Count();
    InsertObject(Result, AText, AObject);
    return Result;
}

void TStrings::AddStrings(const TStrings& AStrings) {
    const TUpdate Update(*this);
    const int Last = AStrings.Count();
    for (int I = 0; I < Last; ++I)
        AddObject(AStrings.Strings(I), AStrings.Objects(I));
}

void TStrings::AddStrings(const TDynArray<UnicodeString>& AStrings) {
    const TUpdate Update(*this);
    for (const UnicodeString& Each : AStrings)
        Add(Each);
}

void TStrings::Exchange(int AIndex1, int AIndex2) {
    const TUpdate Update(*this);
    const UnicodeString Text = Strings(AIndex1);
    TObject* Object = Objects(AIndex1);
    SetString(AIndex1, Strings(AIndex2));
    SetObject(AIndex1, Objects(AIndex2));
    SetString(AIndex2, Text);
    SetObject(AIndex2, Object);
}

void TStrings::Move(int ACurIndex, int ANewIndex) {
    if (ANewIndex < 0 || ANewIndex >= Count())
        IndexError(ANewIndex);
    const TUpdate Update(*this);
    const UnicodeString Text = Strings(ACurIndex);
    TObject* Object = Objects(ACurIndex);
    SetObject(ACurIndex, nullptr);
    Delete(ACurIndex);
    InsertObject(ANewIndex, Text, Object);
}

void TStrings::Assign(TPersistent* ASource) {
    const auto* Source = dynamic_cast<const TStrings*>(ASource);
    if (Source == nullptr)
        return Inherited::Assign(ASource);
    if (Source == this)
        return;
    const TUpdate Update(*this);
    Clear();
    FLineBreak = Source->FLineBreak;
    FDelimiter = Source->FDelimiter;
    FQuoteChar = Source->FQuoteChar;
    FNameValueSeparator = Source->FNameValueSeparator;
    FStrictDelimiter = Source->FStrictDelimiter;
    FTrailingLineBreak = Source->FTrailingLineBreak;
    SetUseLocale(Source->FUseLocale);
    AddStrings(*Source);
}

void TStrings::BeginUpdate() {
    if (FUpdateCount == 0)
        SetUpdateState(true);
    ++FUpdateCount;
}

void TStrings::EndUpdate() {
    if (--FUpdateCount == 0)
        SetUpdateState(false);
}

UnicodeString TStrings::Text() const {
    UnicodeString Result;
    const int Last = Count();
    for (int I = 0; I < Last; ++I) {
        Result += Strings(I);
        if (FTrailingLineBreak || I + 1 < Last)
            Result += FLineBreak;
    }
    return Result;
}

void TStrings::SetText(const TStringArg& AText) {
    const TUpdate Update(*this);
    Clear();
    const bool IsUsual =
        FLineBreak.empty() || FLineBreak == u"\r\n" || FLineBreak == u"\n" || FLineBreak == u"\r";
    const UnicodeString Break = IsUsual ? UnicodeString() : FLineBreak;
    for (TView Rest = AText; !Rest.empty();)
        Add(IsUsual ? TakeLine(Rest) : TakeUpTo(Rest, Break));
}

UnicodeString TStrings::CommaText() const {
    return Join(u',', u'"', false);
}

void TStrings::SetCommaText(const TStringArg& AText) {
    Split(AText, u',', u'"', false);
}

UnicodeString TStrings::DelimitedText() const {
    return Join(FDelimiter, FQuoteChar, FStrictDelimiter);
}

void TStrings::SetDelimitedText(const TStringArg& AText) {
    Split(AText, FDelimiter, FQuoteChar, FStrictDelimiter);
}

// An empty line is quoted where nothing else would show it: when it is the only one, or when the delimiter is
// a blank, of which several separate as one does.
UnicodeString TStrings::Join(char16_t ADelimiter, char16_t AQuote, bool AStrict) const {
    const int Last = Count();
    const bool ShowsEmpty = Last > 1 && (AStrict || !IsBlank(ADelimiter));
    const auto IsSpecial = [=](char16_t AChar) {
        return AChar == ADelimiter || AChar == AQuote || (!AStrict && IsBlank(AChar));
    };
    UnicodeString Result;
    for (int I = 0; I < Last; ++I) {
        const UnicodeString Line = Strings(I);
        if (I > 0)
            Result += ADelimiter;
        const bool Quoted = Line.empty() ? !ShowsEmpty : std::any_of(Line.begin(), Line.end(), IsSpecial);
        Result += Quoted && AQuote != u'\0' ? AnsiQuotedStr(Line, AQuote) : Line;
    }
    return Result;
}

void TStrings::Split(TView AText, char16_t ADelimiter, char16_t AQuote, bool AStrict) {
    const auto EndsItem = [=](char16_t AChar) { return AChar == ADelimiter || (!AStrict && IsBlank(AChar)); };
    const TUpdate Update(*this);
    Clear();
    TView Rest = AText;
    if (!AStrict)
        SkipBlanks(Rest);
    while (!Rest.empty()) {
        if (AQuote != u'\0' && Rest.front() == AQuote) {
            Add(AnsiExtractQuotedStr(Rest, AQuote));
        } else {
            const auto End = std::find_if(Rest.begin(), Rest.end(), EndsItem);
            const auto Length = static_cast<std::size_t>(End - Rest.begin());
            Add(Rest.substr(0, Length));
            Rest.remove_prefix(Length);
        }
        if (!AStrict)
            SkipBlanks(Rest);
        if (Rest.empty() || Rest.front() != ADelimiter)
            continue;
        Rest.remove_prefix(1);
        if (Rest.empty())
            Add(UnicodeString());
        else if (!AStrict)
            SkipBlanks(Rest);
    }
}

void TStrings::LoadFromFile(const TStringArg& AFileName, const TEncoding& AEncoding) {
    const platform::TResult<std::vector<std::byte>> Bytes = platform::ReadWholeFile(AFileName);
    if (!Bytes)
        detail::RaiseFileError<EFOpenError>(SFOpenError, AFileName, Bytes.Error());
    std::size_t Mark = 0;
    const TEncoding Encoding = TEncoding::Detect(*Bytes, AEncoding, Mark);
    SetText(Encoding.GetString(std::span(*Bytes).subspan(Mark)));
}

void TStrings::SaveToFile(const TStringArg& AFileName) const {
    Save(AFileName, {}, TEncoding::UTF8());
}

void TStrings::SaveToFile(const TStringArg& AFileName, const TEncoding& AEncoding) const {
    Save(AFileName, AEncoding.GetPreamble(), AEncoding);
}

void TStrings::Save(const TStringArg& AFileName, const TBytes& AMark, const TEncoding& AEncoding) const {
    const TBytes Content = AEncoding.GetBytes(Text());
    const std::span<const std::byte> Pieces[] = {std::as_bytes(std::span(AMark)),
                                                 std::as_bytes(std::span(Content))};
    if (const platform::TResult<> Written = platform::WriteWholeFile(AFileName, Pieces); !Written)
        detail::RaiseFileError<EFCreateError>(SFCreateError, AFileName, Written.Error());
}

} // namespace qz
