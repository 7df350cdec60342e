// IQzLogData: a message as a record with a description of the machine, which can be passed on before it is
// logged.
//
//     Ref<IQzLogData> Data = TQzLogData::Create(llInfo, u"started");
//     Data->Data()->FSource = u"backup";
//     Logger().Log(Data);            // uses the level, the message and the indent
//
// A record belongs to one thread at a time.
#pragma once

#include <qz/common/uQzLogger/LogTypes.h>
#include <qz/runtime/objects/InterfacedObject.h>
#include <qz/runtime/time/DateTime.h>

namespace qz {

class TQzLogData;

class IQzLogData : public IInterface {
public:
    static constexpr TGUID IID = Guid("{63196C58-37A5-47C3-9217-D04A6FDEE05F}");

    virtual TQzLogData* Data() = 0;

protected:
    ~IQzLogData() = default;
};

class QZ_API TQzLogData : public TInterfacedObject, public IQzLogData {
    QZ_CLASS(TQzLogData, TInterfacedObject)
    QZ_INTERFACE_COUNTING(TInterfacedObject)

public:
    TQzLogData* Data() override { return this; }

    TQzLogLevel FLogLevel;
    TQzLogIndent FIndent = liIndentNone;
    UnicodeString FLogMessage;
    UnicodeString FComputerName; // QzGetComputerName
    UnicodeString FUserName;     // QzGetUserName
    UnicodeString FActiveForm;   // "n.a.", as FActiveControl and FResolution
    UnicodeString FActiveControl;
    UnicodeString FExtendedInfo;
    UnicodeString FSource;
    // The name for the number of QzGetWindowsVersion, "Unidentified OS" on other systems. Later versions than
    // Windows 8 may have its number.
    UnicodeString FOS;
    UnicodeString FVersion; // of the system, such as 10.0; Build: 4A61, "": the build is hexadecimal
    TDateTime FTimestamp;   // local time of creation
    UnicodeString FResolution;
    UnicodeString FHelpText;

protected:
    TQzLogData(TQzLogLevel ALevel, const UnicodeString& AMessage);
};

namespace detail {

// The name of the system with that number of QzGetWindowsVersion.
QZ_API std::u16string_view SystemNameOf(std::uint16_t AVersion) noexcept;

} // namespace detail

} // namespace qz
