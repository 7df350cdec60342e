#include "common/uQzLogger/LogData.h"

#include "runtime/reflection/Describe.h"

namespace qz {

constinit const TClassRec TQzLogData::ClassRec = DescribeClass<TQzLogData>(
    u"TQzLogData", {.Unit = u"uQzLogger", .Interfaces = Interfaces<TQzLogData, IQzLogData>()});

TQzLogData::TQzLogData(TQzLogLevel ALevel, const UnicodeString& AMessage)
    : FLogLevel(ALevel),
      FLogMessage(AMessage),
      FTimestamp(Now()) {}

} // namespace qz
