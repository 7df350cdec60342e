// Unit uQzLogger: a tree of loggers, and what takes their messages.
#pragma once

// Levels, indentation, values of messages.
#include "common/uQzLogger/LogTypes.h"
// What loggers need of others:
// IQzLogAppender, IQzLogLayout, IQzLogConfigurator.
#include "common/uQzLogger/LogInterfaces.h"
// IQzLogger: a logger as its users see it.
#include "common/uQzLogger/LoggerInterface.h"
// TQzLogger, the root Logger(), and
// CloseRootLogger.
#include "common/uQzLogger/QzLogger.h"
// The children of a logger.
#include "common/uQzLogger/LoggerList.h"
// The appenders of a logger.
#include "common/uQzLogger/LogAppenderList.h"
// TQzLogBase, and the registries of classes and
// living appenders.
#include "common/uQzLogger/LogBase.h"
// A message as a record.
#include "common/uQzLogger/LogData.h"
// The dump of an object.
#include "common/uQzLogger/DataRec.h"
// The hook that hears of failures of appenders.
#include "common/uQzLogger/LogDrops.h"
// EnterMethod and ExitMethod around a block.
#include "common/uQzLogger/MethodScope.h"
