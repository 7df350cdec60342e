#include <qz/common/uQzLogAppenders/RollingFileAppender.h>

#include <algorithm>
#include <tuple>

#include <qz/common/uQzTypes/VarTolerant.h>
#include <qz/platform/FileTimes.h>
#include <qz/platform/Files.h>
#include <qz/platform/Threads.h>
#include <qz/runtime/files/FileNames.h>
#include <qz/runtime/files/FileSystem.h>
#include <qz/runtime/objects/TypeNames.h>
#include <qz/runtime/text/NumberText.h>
#include <qz/runtime/values/VariantConvert.h>

namespace qz {

QZ_REGISTER_TYPES(TQzRollingFileAppender, TQzFileInfo);

constinit const TClassRec TQzRollingFileAppender::ClassRec = DescribeLogBase<TQzRollingFileAppender>(
    u"TQzRollingFileAppender",
    {.Unit = u"uQzLogAppenders", .Interfaces = Interfaces<TQzRollingFileAppender, IQzRollingFileAppender>()});

constinit const TClassRec TQzFileInfo::ClassRec =
    DescribeClass<TQzFileInfo>(u"TQzFileInfo", {.Unit = u"uQzLogAppenders"});

namespace {

constexpr std::uint64_t cPatience = 1000; // milliseconds

// The name without path and extension. The extension is AExtension, or else what follows the last point.
std::u16string_view BaseOf(std::u16string_view AFileName, std::u16string_view AExtension) {
    const std::size_t Path = ExtractFilePath(AFileName).size();
    const std::u16string_view Name = AFileName.substr(Path);
    const std::size_t Rest = Name.size() - std::min(Name.size(), AExtension.size());
    if (!AExtension.empty() && SameFileName(Name.substr(Rest), AExtension))
        return Name.substr(0, Rest);
    return Name.substr(0, Name.size() - ExtractFileExt(Name).size());
}

} // namespace

UnicodeString TQzRollingFileAppender::BasePath() const {
    return ExtractFilePath(FileName()) + BaseOf(FileName(), FileExt());
}

TQzFileInfo TQzRollingFileAppender::CreateFileInfo(const UnicodeString& AFileName) {
    TQzFileInfo Result;
    Result.FileNameLeft = BaseOf(FileName(), FileExt());
    const std::u16string_view Name = BaseOf(AFileName, FileExt());
    const std::u16string_view Right = Name.substr(std::min(Name.size(), Result.FileNameLeft.size()));
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

// With a name that is only an extension, the whole directory would be the family.
bool TQzRollingFileAppender::IsOfFamily(std::u16string_view AName) const {
    const std::u16string_view Base = BaseOf(FileName(), FileExt());
    return Base.empty() ? SameFileName(AName, ExtractFileName(FileName()))
                        : SameFileName(AName.substr(0, Base.size()), Base);
}

// The live file first, then by number, then the newest first. Times are equal where the file system keeps
// coarse ones: then the last name is the newest, as with dates.
std::vector<TQzRollingFileAppender::TMember> TQzRollingFileAppender::Family() {
    const UnicodeString Path = ExtractFilePath(FileName());
    const UnicodeString Live = ExtractFileName(FileName());
    // A directory that cannot be listed has no members.
    const auto Entries = platform::ListDirectory(Path.IsEmpty() ? u"." : Path.View());
    std::vector<TMember> Result;
    for (const platform::TDirEntry& Entry : *Entries) {
        if (!IsOfFamily(Entry.Name))
            continue;
        const auto Times = platform::ReadFileTimes(Path + Entry.Name);
        Result.push_back({Entry.Name, !SameFileName(Entry.Name, Live), CreateFileInfo(Entry.Name),
                          Times ? Times->LastWrite : 0, false});
    }
    std::sort(Result.begin(), Result.end(), [](const TMember& ALeft, const TMember& ARight) {
        return std::tie(ALeft.IsBackup, ALeft.Info.Index, ARight.Written, ARight.Name) <
            std::tie(ARight.IsBackup, ARight.Info.Index, ALeft.Written, ALeft.Name);
    });
    return Result;
}

// Renames the member to the number APlace. A backup that cannot be renamed is deleted when its name is
// needed. A file that another process has created under the new name stays, and the member keeps its name.
void TQzRollingFileAppender::Move(std::vector<TMember>& AFamily, TMember& AMember, std::int64_t APlace) {
    const UnicodeString Path = ExtractFilePath(FileName());
    const UnicodeString Name = UnicodeString(BaseOf(FileName(), FileExt())) + u'.' + IntToStr(APlace) +
        AMember.Info.FileNameRight + FileExt();
    if (SameFileName(Name, AMember.Name))
        return;
    const bool IsInTheWay = std::any_of(AFamily.begin(), AFamily.end(), [&Name](const TMember& AOther) {
        return AOther.IsStuck && SameFileName(AOther.Name, Name);
    });
    if (IsInTheWay)
        DeleteFile(Path + Name);
    if (!RenameFile(Path + AMember.Name, Path + Name))
        AMember.IsStuck = FileExists(Path + AMember.Name) && (IsInTheWay || !FileExists(Path + Name));
}

// Numbers that decrease are assigned in ascending order, the others in descending order, so that each new
// name is free.
void TQzRollingFileAppender::Shift() {
    CheckBackupCount();
    std::vector<TMember> All = Family();
    const std::size_t Count = std::min<std::size_t>(All.size(), FMaxBackupCount);
    const auto PlaceOf = [](std::size_t AIndex) { return static_cast<std::int64_t>(AIndex) + 1; };
    for (std::size_t I = 0; I < Count; ++I) {
        if (All[I].Info.Index > PlaceOf(I))
            Move(All, All[I], PlaceOf(I));
    }
    for (std::size_t I = Count; I-- > 0;) {
        if (All[I].Info.Index <= PlaceOf(I))
            Move(All, All[I], PlaceOf(I));
    }
}

void TQzRollingFileAppender::RollOver() {
    const TScopedLock Hold(*this);
    CloseQuietly();
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
    if (!IsFull() || platform::CoarseTickCount64() < FNextTry)
        return;
    RollOver();
    if (IsFull() && IsContinuing()) // the rename failed
        FNextTry = platform::CoarseTickCount64() + cPatience;
}

bool TQzRollingFileAppender::IsFull() const {
    return File() != nullptr && FMaxFileSize != 0 &&
        static_cast<std::uint32_t>(File()->Size()) >= FMaxFileSize;
}

// A file that cannot be renamed is continued.
void TQzRollingFileAppender::Initialize() {
    const TScopedLock Hold(*this);
    const TInitializing Now(*this);
    const bool Replaces = File() == nullptr && !AppendsExisting() && FileExists(FileName());
    if (Replaces)
        RollOver();
    OpenFile(Replaces || AppendsExisting());
}

void TQzRollingFileAppender::Write(const UnicodeString& ASource, const UnicodeString& ALogger,
                                   TQzLogLevel ALevel, const UnicodeString& AMessage, PQzDataRec AValue,
                                   TQzLogIndent AIndent) {
    const TScopedLock Hold(*this);
    if (FMaxBackupCount == 0)
        return;
    CloseIfGone();
    CheckRollover();
    Inherited::Write(ASource, ALogger, ALevel, AMessage, AValue, AIndent);
}

void TQzRollingFileAppender::SetConfig(IQzLogConfigurator* AConfigurator) {
    const TScopedLock Hold(*this);
    Inherited::SetConfig(AConfigurator);
    if (AConfigurator == nullptr)
        return;
    const auto Ask = [&](const UnicodeString& AKey, std::int64_t APresent) {
        const Variant Answer = AConfigurator->GetAppenderValue(ConfiguredName(), AKey, mtkInteger, APresent);
        return VarIsClear(Answer) || VarIsNull(Answer) ? APresent : QzVarToInt64(Answer, 0, true);
    };
    const std::int64_t Size = Ask(u"MaxFileSize", FMaxFileSize);
    const std::int64_t Count = Ask(u"MaxBackupCount", FMaxBackupCount);
    if (Count < 0 || Count > UINT16_MAX)
        throw ERangeError(u"%d is not a number of files", {Count});
    FMaxFileSize = static_cast<std::uint32_t>(Size);
    SetMaxBackupCount(static_cast<std::uint16_t>(Count));
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
