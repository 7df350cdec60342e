#include <qz/common/uQzLogAppenders/FileAppender.h>

#include <qz/common/uQzTypes/VarTolerant.h>
#include <qz/common/uQzWindows/ShellFolders.h>
#include <qz/common/uQzWindows/SystemVersion.h>
#include <qz/platform/Threads.h>
#include <qz/runtime/base/StringUtils.h>
#include <qz/runtime/files/FileNames.h>
#include <qz/runtime/files/FileSystem.h>
#include <qz/runtime/objects/TypeNames.h>

namespace qz {

QZ_REGISTER_TYPES(TQzFileAppender);

constinit const TClassRec TQzFileAppender::ClassRec = DescribeLogBase<TQzFileAppender>(
    u"TQzFileAppender",
    {.Unit = u"uQzLogAppenders", .Interfaces = Interfaces<TQzFileAppender, IQzFileAppender>()});

namespace {

constexpr TTextConstant cExtension = u".log";
constexpr std::int32_t cCommonDocuments = 46;
// From this version on a program cannot write files beside itself.
constexpr std::uint16_t cKeepsOffPrograms = 601;
constexpr std::uint64_t cRetryEvery = 100; // milliseconds
constexpr std::int64_t cLargestBuffer = std::int64_t{1} << 30;

UnicodeString NameAmongDocuments(const UnicodeString& AProgram) {
    const UnicodeString Name = ChangeFileExt(ExtractFileName(AProgram), u"");
    const UnicodeString Documents = IncludeTrailingPathDelimiter(QzGetShellFolder(cCommonDocuments));
    return IncludeTrailingPathDelimiter(Documents + Name) + Name + cExtension;
}

// Without a directory for documents the application can still set another name.
UnicodeString DefaultFileName() {
    const UnicodeString Program = ProgramFileName();
    if (QzGetWindowsVersion() >= cKeepsOffPrograms) {
        try {
            return NameAmongDocuments(Program);
        } catch (const Exception&) { // NOLINT(bugprone-empty-catch)
        }
    }
    return ChangeFileExt(Program, cExtension);
}

} // namespace

TQzFileAppender::TQzFileAppender(TQzLogger* ALogger, const UnicodeString& AName)
    : TQzLogBaseWith(ALogger, AName),
      FFileName(DefaultFileName()),
      FFileExt(cExtension) {}

TQzFileAppender::~TQzFileAppender() = default;

void TQzFileAppender::Initialize() {
    const TScopedLock Hold(*this);
    OpenFile(FAppendExisting);
}

const UnicodeString& TQzFileAppender::FileName() const {
    if (FPath.IsEmpty() && !TrimView(FFileName).empty())
        FPath = ExpandFileName(FFileName);
    return FPath;
}

void TQzFileAppender::TakeDefaultName() {
    if (!FHasDefaultName || ForceDirectories(ExtractFilePath(FFileName)))
        return;
    FFileName = ChangeFileExt(ProgramFileName(), FFileExt);
    FPath = {};
}

// A file of no bytes has no header yet.
void TQzFileAppender::ContinueDocument(TQzTextFile& AFile) {
    const auto Document = As<IQzLogDocument>(Layout());
    if (!FIsContinuing || Document == nullptr || !Document->ContinuesDocument())
        return;
    AFile.RemoveEnd(Footer());
    FIsContinuing = AFile.Size() != 0;
}

// A header that closes the appender, as it may once, has the file opened again.
void TQzFileAppender::OpenFile(bool AContinues) {
    const TInitializing Now(*this);
    EndFile();
    if (TrimView(FFileName).empty())
        return;
    TakeDefaultName();
    OpenOnce(AContinues);
    if (FFileStream == nullptr)
        OpenOnce(true);
    if (FFileStream == nullptr)
        throw EFOpenError(u"The layout closes the file \"%s\"", {FileName()});
    Inherited::Initialize();
}

void TQzFileAppender::OpenOnce(bool AContinues) {
    const bool IsThere = FileExists(FileName());
    FIsContinuing = IsThere && AContinues;
    if (IsThere && !AContinues)
        DeleteFile(FileName());
    auto File = std::make_unique<TQzTextFile>(FileName(), &OwnLock());
    ContinueDocument(*File);
    File->SetBufferSize(FBufferSize);
    FFileStream = std::move(File);
    FOwesHeader = Layout() != nullptr && !FIsContinuing;
    try {
        PayHeader();
    } catch (const EStreamError&) { // NOLINT(bugprone-empty-catch): written before the first line
    } catch (...) {
        FFileStream.reset();
        throw;
    }
}

void TQzFileAppender::PayHeader() {
    if (!FOwesHeader)
        return;
    const UnicodeString Text = Layout() != nullptr ? Header() : UnicodeString();
    if (!Text.IsEmpty() && FFileStream != nullptr)
        FFileStream->WriteLn(Text);
    FOwesHeader = false;
}

void TQzFileAppender::Write(const UnicodeString& ASource, const UnicodeString& ALogger, TQzLogLevel ALevel,
                            const UnicodeString& AMessage, PQzDataRec AValue, TQzLogIndent AIndent) {
    const TScopedLock Hold(*this);
    CloseIfGone();
    RepeatFailure();
    try {
        Inherited::Write(ASource, ALogger, ALevel, AMessage, AValue, AIndent);
    } catch (const EStreamError&) {
        FFailure = std::current_exception();
        FFailedAt = platform::CoarseTickCount64();
        throw;
    }
    if (LacksLayout() || FFileStream == nullptr)
        return;
    if (FOwesHeader) [[unlikely]]
        PayHeader();
    if (Layout() == nullptr) [[unlikely]] // the header has taken it away
        return;
    const UnicodeString Line = FormatLine(ALogger, ALevel, AMessage, AValue, AIndent);
    if (FFileStream == nullptr) [[unlikely]] // the layout has closed the appender
        Inherited::Write(ASource, ALogger, ALevel, AMessage, AValue, AIndent);
    if (Line.IsEmpty() || FFileStream == nullptr)
        return;
    if (FBufferSize != 0 && ALevel < FFlushLevel)
        FFileStream->WriteLnLater(Line);
    else
        FFileStream->WriteLn(Line);
}

// An attempt to open the file may take a millisecond, and other threads wait meanwhile.
void TQzFileAppender::RepeatFailure() {
    if (FFailure == nullptr)
        return;
    if (platform::CoarseTickCount64() - FFailedAt < cRetryEvery)
        std::rethrow_exception(FFailure);
    FFailure = nullptr;
}

void TQzFileAppender::WriteFooter() {
    if (Layout() == nullptr || FFileStream == nullptr || FOwesHeader || FFileStream->IsInherited())
        return;
    const UnicodeString Text = Footer();
    if (!Text.IsEmpty() && FFileStream != nullptr)
        FFileStream->Write(Text);
}

void TQzFileAppender::CloseIfGone() {
    if (FFileStream != nullptr && FFileStream->HasGone())
        CloseQuietly();
}

void TQzFileAppender::EndFile() {
    FFileStream.reset();
    FFailure = nullptr;
    Inherited::Close();
}

void TQzFileAppender::Close() {
    const TScopedLock Hold(*this);
    struct TEnd {
        ~TEnd() { Appender.EndFile(); }
        TQzFileAppender& Appender;
    } const End{*this};
    WriteFooter();
}

void TQzFileAppender::CloseQuietly() {
    try {
        Close();
    } catch (const EStreamError&) { // NOLINT(bugprone-empty-catch): the file is closed all the same
    }
}

void TQzFileAppender::SetLayout(IQzLogLayout* ALayout) {
    const TScopedLock Hold(*this);
    CloseQuietly();
    if (const auto Layout = As<IQzLogLayoutEx>(ALayout))
        SetFileExt(Layout->GetFileExt());
    Inherited::SetLayout(ALayout);
}

void TQzFileAppender::SetConfig(IQzLogConfigurator* AConfigurator) {
    const TScopedLock Hold(*this);
    if (AConfigurator != nullptr) {
        const auto Ask = [&](const UnicodeString& AKey, TQzMainTypeKind AKind, const Variant& ADefault) {
            return AConfigurator->GetAppenderValue(ConfiguredName(), AKey, AKind, ADefault);
        };
        FAppendExisting = QzVarToBool(Ask(u"AppendExisting", mtkBoolean, true), true, true);
        const UnicodeString FileName = QzVarToStr(Ask(u"FileName", mtkString, u""), {}, true);
        const UnicodeString FileExt = QzVarToStr(Ask(u"FileExt", mtkString, u""), {}, true);
        if (!FileExt.IsEmpty())
            SetFileExt(FileExt);
        if (!FileName.IsEmpty())
            SetFileName(FileName);
        ReadOwnValues(*AConfigurator);
    }
    Inherited::SetConfig(AConfigurator);
}

// A configurator need not know these keys: without an answer that is a number the present value stays.
void TQzFileAppender::ReadOwnValues(IQzLogConfigurator& AConfigurator) {
    const auto Ask = [&](const UnicodeString& AKey, std::int32_t APresent) {
        try {
            return QzVarToInt(AConfigurator.GetAppenderValue(ConfiguredName(), AKey, mtkInteger, APresent),
                              APresent, true);
        } catch (const std::exception&) {
            return APresent;
        }
    };
    SetBufferSize(Ask(u"BufferSize", static_cast<std::int32_t>(FBufferSize)));
    SetFlushLevel(QzLogLevelOf(Ask(u"FlushLevel", static_cast<std::int32_t>(FFlushLevel))));
}

UnicodeString TQzFileAppender::GetFileName() {
    const TScopedLock Hold(*this);
    return FFileName;
}

bool TQzFileAppender::GetAppendExisting() {
    const TScopedLock Hold(*this);
    return FAppendExisting;
}

UnicodeString TQzFileAppender::GetFileExt() {
    const TScopedLock Hold(*this);
    return FFileExt;
}

void TQzFileAppender::SetFileExt(const UnicodeString& AExtension) {
    const TScopedLock Hold(*this);
    if (AExtension == FFileExt)
        return;
    CloseQuietly();
    FFileExt = !AExtension.IsEmpty() && AExtension[0] == u'.' ? AExtension : u'.' + AExtension;
    FFileName = ChangeFileExt(FFileName, FFileExt);
    FPath = {};
}

void TQzFileAppender::SetAppendExisting(bool AValue) {
    const TScopedLock Hold(*this);
    FAppendExisting = AValue;
}

void TQzFileAppender::SetFileName(const UnicodeString& AName) {
    const TScopedLock Hold(*this);
    if (AName == FFileName)
        return;
    CloseQuietly();
    UnicodeString Extension = ExtractFileExt(AName);
    const bool IsComplete = !Extension.IsEmpty() || TrimView(AName).empty();
    FFileName = IsComplete ? AName : AName + FFileExt;
    FPath = {};
    FHasDefaultName = false;
    if (!Extension.IsEmpty())
        FFileExt = std::move(Extension);
}

std::int64_t TQzFileAppender::GetBufferSize() {
    const TScopedLock Hold(*this);
    return static_cast<std::int64_t>(FBufferSize);
}

void TQzFileAppender::SetBufferSize(std::int64_t AValue) {
    if (AValue < 0 || AValue > cLargestBuffer)
        throw ERangeError(u"%d is not the size of a buffer", {AValue});
    const TScopedLock Hold(*this);
    if (FFileStream != nullptr)
        FFileStream->SetBufferSize(static_cast<std::size_t>(AValue));
    FBufferSize = static_cast<std::size_t>(AValue);
}

TQzLogLevel TQzFileAppender::GetFlushLevel() {
    const TScopedLock Hold(*this);
    return FFlushLevel;
}

void TQzFileAppender::SetFlushLevel(TQzLogLevel AValue) {
    const TScopedLock Hold(*this);
    FFlushLevel = AValue;
}

void TQzFileAppender::Flush() {
    const TScopedLock Hold(*this);
    if (FFileStream != nullptr)
        FFileStream->Flush();
}

} // namespace qz
