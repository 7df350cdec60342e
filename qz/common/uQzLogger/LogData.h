// IQzLogData: a message as a record of its own, with the machine on which it arose, which can be passed around before it is
// logged.
//
//     Ref<IQzLogData> Data = TQzLogData::Create(llInfo, u"started");
//     Data->Data()->FSource = u"backup";
//     Logger().Log(Data);            // the level, the message and the indent; the other fields are for readers of the record
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
    // By QzGetWindowsVersion, whose number for Windows 8 later ones may have too. "Unidentified OS" for a number that has no
    // name here, such as that of other systems.
    UnicodeString FOS;
    UnicodeString FVersion; // of the system, such as 10.0; Build: 4A61, "": the build in hexadecimal digits
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
