#include <qz/common/uQzLogger/LogData.h>

#include <algorithm>

#include <qz/common/uQzWindows/Accounts.h>
#include <qz/common/uQzWindows/SystemVersion.h>
#include <qz/platform/SystemVersion.h>
#include <qz/runtime/objects/Describe.h>
#include <qz/runtime/objects/TypeNames.h>
#include <qz/runtime/text/Format.h>

namespace qz {

QZ_REGISTER_TYPES(TQzLogData);

constinit const TClassRec TQzLogData::ClassRec = DescribeClass<TQzLogData>(
    u"TQzLogData", {.Unit = u"uQzLogger", .Interfaces = Interfaces<TQzLogData, IQzLogData>()});

namespace {

constexpr TTextConstant cNotAvailable = u"n.a.";

struct TSystemName {
    std::uint16_t Version;
    std::u16string_view Name;
};

constexpr TSystemName cSystems[] = {
    {1, u"Win 3.1"},        {3, u"Windows 95"},      {5, u"Windows 95 OSR2"},
    {7, u"Windows 98"},     {9, u"Windows 98 SE"},   {11, u"Windows Milennium"},
    {12, u"Windows NT"},    {14, u"Windows NT 3.0"}, {16, u"Windows NT 4.0"},
    {500, u"Windows 2000"}, {511, u"Windows XP"},    {520, u"Windows Server 2003"},
    {601, u"Vista"},        {611, u"Windows 7"},     {621, u"Windows 8"},
};

// Constant while the program runs.
struct TSystem {
    UnicodeString Name;
    UnicodeString Version;
};

TSystem AskSystem() {
    const platform::TSystemVersion Version = platform::SystemVersion();
    return {detail::SystemNameOf(QzGetWindowsVersion()),
            Format(u"%d.%d; Build: %x, \"%s\"", {Version.Major, Version.Minor, Version.Build, Version.Pack})};
}

const TSystem& System() {
    static const TSystem& Result = *new TSystem(AskSystem()); // never destroyed: used while the program ends
    return Result;
}

} // namespace

std::u16string_view detail::SystemNameOf(std::uint16_t AVersion) noexcept {
    const auto* const Found = std::ranges::find(cSystems, AVersion, &TSystemName::Version);
    return Found != std::end(cSystems) ? Found->Name : u"Unidentified OS";
}

TQzLogData::TQzLogData(TQzLogLevel ALevel, const UnicodeString& AMessage)
    : FLogLevel(ALevel),
      FLogMessage(AMessage),
      FComputerName(QzGetComputerName()),
      FUserName(QzGetUserName()),
      FActiveForm(cNotAvailable),
      FActiveControl(cNotAvailable),
      FOS(System().Name),
      FVersion(System().Version),
      FTimestamp(Now()),
      FResolution(cNotAvailable) {}

} // namespace qz
