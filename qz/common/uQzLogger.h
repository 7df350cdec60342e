// Unit uQzLogger: a tree of loggers, and what takes their messages.
#pragma once

// Levels, indentation, values of messages.
#include <qz/common/uQzLogger/LogTypes.h>
// What loggers need of others:
// IQzLogAppender, IQzLogLayout, IQzLogConfigurator.
#include <qz/common/uQzLogger/LogInterfaces.h>
// IQzLogger: a logger as its users see it.
#include <qz/common/uQzLogger/LoggerInterface.h>
// TQzLogger, the root Logger(), and
// CloseRootLogger.
#include <qz/common/uQzLogger/QzLogger.h>
// The children of a logger.
#include <qz/common/uQzLogger/LoggerList.h>
// The appenders of a logger.
#include <qz/common/uQzLogger/LogAppenderList.h>
// TQzLogBase, and the registries of classes and
// living appenders.
#include <qz/common/uQzLogger/LogBase.h>
// A message as a record.
#include <qz/common/uQzLogger/LogData.h>
// The dump of an object.
#include <qz/common/uQzLogger/DataRec.h>
// The hook that hears of failures of appenders.
#include <qz/common/uQzLogger/LogDrops.h>
// EnterMethod and ExitMethod around a block.
#include <qz/common/uQzLogger/MethodScope.h>
