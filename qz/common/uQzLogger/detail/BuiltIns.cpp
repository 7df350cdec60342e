// The only file of the unit that sees the units of layouts and appenders, which stand above it.
#include <qz/common/uQzLogger/detail/BuiltIns.h>

#include <qz/common/uQzLogAppenders/DailyRollingFileAppender.h>
#include <qz/common/uQzLogAppenders/EventLogAppender.h>
#include <qz/common/uQzLogLayouts/SimpleLayout.h>
#include <qz/common/uQzLogLayouts/XmlLayout.h>

namespace qz::detail {

void AddLayouts(TQzLogBaseClassList& AList) {
    AList.Add(TQzLogBaseClass::Of<TQzSimpleLayout>());
    AList.Add(TQzLogBaseClass::Of<TQzXmlLayout>());
}

void AddAppenders(TQzLogBaseClassList& AList) {
    AList.Add(TQzLogBaseClass::Of<TQzFileAppender>());
    AList.Add(TQzLogBaseClass::Of<TQzRollingFileAppender>());
    AList.Add(TQzLogBaseClass::Of<TQzDailyRollingFileAppender>());
    AList.Add(TQzLogBaseClass::Of<TQzEventLogAppender>());
}

} // namespace qz::detail
