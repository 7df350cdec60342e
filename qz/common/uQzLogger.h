// Unit uQzLogger: a tree of loggers and the interfaces of appenders and layouts.
#pragma once

// QzDataRecToString: the dump of an object.
#include <qz/common/uQzLogger/DataRec.h>
// The appenders of a logger.
#include <qz/common/uQzLogger/LogAppenderList.h>
// TQzLogBase; the registries of classes and of living appenders.
#include <qz/common/uQzLogger/LogBase.h>
// TQzLogData: a message as a record.
#include <qz/common/uQzLogger/LogData.h>
// The hook for failures of appenders.
#include <qz/common/uQzLogger/LogDrops.h>
// IQzLogAppender, IQzLogLayout, IQzLogConfigurator.
#include <qz/common/uQzLogger/LogInterfaces.h>
// Levels, indentation, values of messages.
#include <qz/common/uQzLogger/LogTypes.h>
// TQzLogger, the root Logger(), CloseRootLogger.
#include <qz/common/uQzLogger/LoggerClass.h>
// IQzLogger: a logger as its users see it.
#include <qz/common/uQzLogger/LoggerInterface.h>
// The children of a logger.
#include <qz/common/uQzLogger/LoggerList.h>
// EnterMethod and ExitMethod around a block.
#include <qz/common/uQzLogger/MethodScope.h>
