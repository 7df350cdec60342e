#include "common/uQzLogAppenders/RollingFileAppender.h"

#include <algorithm>
#include <tuple>

#include "common/uQzTypes/VarTolerant.h"
#include "platform/Files.h"
#include "runtime/files/FileNames.h"
#include "runtime/files/FileSystem.h"
#include "runtime/text/NumberText.h"
#include "runtime/values/VariantConvert.h"

namespace qz {

constinit const TClassRec TQzRollingFileAppender::ClassRec = DescribeLogBase<TQzRollingFileAppender>(
    u"TQzRollingFileAppender",
    {.Unit = u"uQzLogAppenders", .Interfaces = Interfaces<TQzRollingFileAppender, IQzRollingFileAppender>()});

constinit const TClassRec TQzFileInfo::ClassRec =
    DescribeClass<TQzFileInfo>(u"TQzFileInfo", {.Unit = u"uQzLogAppenders"});

namespace {

UnicodeString BaseOf(const UnicodeString& AFileName) {
    return ChangeFileExt(ExtractFileName(AFileName), u"");
}

} // namespace

TQzFileInfo TQzRollingFileAppender::CreateFileInfo(const UnicodeString& AFileName) {
    TQzFileInfo Result;
    Result.FileNameLeft = BaseOf(FileName());
    const UnicodeString Name = BaseOf(AFileName);
    const std::u16string_view Right = Name.View().substr(std::min(Name.size(), Result.FileNameLeft.size()));
    if (!Right.starts_with(u'.')) {
        Result.FileNameRight = Right;
        return Result;
    }
    const std::size_t Point = Right.size() > 2 ? Right.find(u'.', 2) : std::u16string_view::npos;
    Result.Index = StrToIntDef(Right.substr(1, Point == std::u16string_view::npos ? Point : Point - 1), 0);
    if (Point != std::u16string_view::npos)
        Result.FileNameRight = Right.substr(Point);
    return Result;
}

// By number; among equals the file itself comes first, then by name.
std::vector<TQzRollingFileAppender::TMember> TQzRollingFileAppender::Family() {
    const UnicodeString Path = ExtractFilePath(FileName());
    const UnicodeString Live = ExtractFileName(FileName());
    const UnicodeString Base = BaseOf(FileName());
    std::vector<platform::TDirEntry> Entries;
    platform::TError Error;
    platform::ListDirectory(Path.IsEmpty() ? u"." : Path.View(), Entries, Error);
    std::vector<TMember> Result;
    for (const platform::TDirEntry& Entry : Entries) {
        if (SameFileName(std::u16string_view(Entry.Name).substr(0, Base.size()), Base))
            Result.push_back({Entry.Name, !SameFileName(Entry.Name, Live), CreateFileInfo(Entry.Name)});
    }
    std::sort(Result.begin(), Result.end(), [](const TMember& ALeft, const TMember& ARight) {
        return std::tie(ALeft.Info.Index, ALeft.IsBackup, ALeft.Name) <
            std::tie(ARight.Info.Index, ARight.IsBackup, ARight.Name);
    });
    return Result;
}

// Gives the member its place in the family.
void TQzRollingFileAppender::Move(const TMember& AMember, std::int64_t APlace) {
    const UnicodeString Path = ExtractFilePath(FileName());
    const UnicodeString Name =
        BaseOf(FileName()) + u'.' + IntToStr(APlace) + AMember.Info.FileNameRight + FileExt();
    if (SameFileName(Name, AMember.Name))
        return;
    if (FileExists(Path + Name))
        DeleteFile(Path + Name);
    RenameFile(Path + AMember.Name, Path + Name);
}

// Those behind a gap come down from the bottom up, the others go up from the top down: so each name is free by then.
void TQzRollingFileAppender::Shift() {
    CheckBackupCount();
    const std::vector<TMember> All = Family();
    const std::size_t Count = std::min<std::size_t>(All.size(), FMaxBackupCount);
    const auto PlaceOf = [](std::size_t AIndex) { return static_cast<std::int64_t>(AIndex) + 1; };
    for (std::size_t I = 0; I < Count; ++I) {
        if (All[I].Info.Index > PlaceOf(I))
            Move(All[I], PlaceOf(I));
    }
    for (std::size_t I = Count; I-- > 0;) {
        if (All[I].Info.Index <= PlaceOf(I))
            Move(All[I], PlaceOf(I));
    }
}

void TQzRollingFileAppender::EndWithFooter() {
    try {
        Close();
    } catch (const EStreamError&) { // NOLINT(bugprone-empty-catch): the file is closed nevertheless
    }
}

void TQzRollingFileAppender::RollOver() {
    const TScopedLock Hold(*this);
    EndWithFooter();
    Shift();
    if (!IsInitializing())
        Initialize();
    CheckBackupCount();
}

void TQzRollingFileAppender::CheckBackupCount() {
    const TScopedLock Hold(*this);
    const std::vector<TMember> All = Family();
    const UnicodeString Path = ExtractFilePath(FileName());
    for (std::size_t I = All.size(); I-- > FMaxBackupCount;)
        DeleteFile(Path + All[I].Name);
}

void TQzRollingFileAppender::CheckRollover() {
    const TScopedLock Hold(*this);
    if (File() != nullptr && FMaxFileSize != 0 && static_cast<std::uint32_t>(File()->Size()) >= FMaxFileSize)
        RollOver();
}

void TQzRollingFileAppender::Initialize() {
    const TScopedLock Hold(*this);
    const TInitializing Now(*this);
    if (File() == nullptr && !AppendsExisting() && FileExists(FileName()))
        RollOver();
    Inherited::Initialize();
}

void TQzRollingFileAppender::Write(const UnicodeString& ASource, const UnicodeString& ALogger,
                                   TQzLogLevel ALevel, const UnicodeString& AMessage, PQzDataRec AValue,
                                   TQzLogIndent AIndent) {
    const TScopedLock Hold(*this);
    if (FMaxBackupCount == 0)
        return;
    CheckRollover();
    Inherited::Write(ASource, ALogger, ALevel, AMessage, AValue, AIndent);
}

void TQzRollingFileAppender::SetConfig(IQzLogConfigurator* AConfigurator) {
    const TScopedLock Hold(*this);
    Inherited::SetConfig(AConfigurator);
    if (AConfigurator == nullptr)
        return;
    const auto Ask = [&](const UnicodeString& AKey, std::int64_t APresent) {
        const Variant Answer = AConfigurator->GetAppenderValue(Name(), AKey, mtkInteger, APresent);
        return VarIsClear(Answer) || VarIsNull(Answer) ? APresent : QzVarToInt64(Answer, 0, true);
    };
    FMaxFileSize = static_cast<std::uint32_t>(Ask(u"MaxFileSize", FMaxFileSize));
    SetMaxBackupCount(static_cast<std::uint16_t>(Ask(u"MaxBackupCount", FMaxBackupCount)));
}

std::uint32_t TQzRollingFileAppender::GetMaxFileSize() {
    const TScopedLock Hold(*this);
    return FMaxFileSize;
}

std::uint16_t TQzRollingFileAppender::GetMaxBackupCount() {
    const TScopedLock Hold(*this);
    return FMaxBackupCount;
}

void TQzRollingFileAppender::SetMaxFileSize(std::uint32_t AValue) {
    const TScopedLock Hold(*this);
    FMaxFileSize = AValue;
}

void TQzRollingFileAppender::SetMaxBackupCount(std::uint16_t AValue) {
    const TScopedLock Hold(*this);
    FMaxBackupCount = AValue;
    if (AValue == 0 && File() != nullptr)
        EndFile();
    CheckBackupCount();
}

} // namespace qz
