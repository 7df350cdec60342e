// The configuration of the loggers of this application: a table with the interface of a configurator.
//
//     Logger().SetConfig(TourConfiguration(u"logtour/").Get());
//     const Ref<IQzLogger> Tour = Logger().GetLogger("tour");
//     Tour->GetLogger("readme")->Info("to all four appenders");
#pragma once

#include <qz/common/uQzLogger.h>

// "root.tour" and the loggers right below it write to four appenders, whose files are in ADirectory, which ends with a
// separator. Hold the first as long as messages are to go to the same files.
qz::Ref<qz::IQzLogConfigurator> TourConfiguration(const qz::UnicodeString& ADirectory);
