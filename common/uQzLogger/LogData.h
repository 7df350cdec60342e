// IQzLogData: a message as a record of its own, which can be passed around before it is logged.
//
//     Ref<IQzLogData> Data = TQzLogData::Create(llInfo, u"started");
//     Logger().Log(Data);
#pragma once

#include "common/uQzLogger/LogTypes.h"
#include "runtime/objects/InterfacedObject.h"
#include "runtime/time/DateTime.h"

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
    UnicodeString FSource;
    TDateTime FTimestamp; // local time of creation

protected:
    TQzLogData(TQzLogLevel ALevel, const UnicodeString& AMessage);
};

} // namespace qz
