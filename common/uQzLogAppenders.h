// Unit uQzLogAppenders: where messages go.
#pragma once

// TQzBaseAppender: the frame of all appenders.
#include "common/uQzLogAppenders/BaseAppender.h"
// TQzDailyRollingFileAppender: a file
// for each day.
#include "common/uQzLogAppenders/DailyRollingFileAppender.h"
// TQzEventLogAppender: an event in the log
// of the system for each message.
#include "common/uQzLogAppenders/EventLogAppender.h"
// TQzFileAppender: a line of a file
// for each message.
#include "common/uQzLogAppenders/FileAppender.h"
// TQzRollingFileAppender: a family of
// files of one size.
#include "common/uQzLogAppenders/RollingFileAppender.h"
// TQzTextFile: the file that these
// write to.
#include "common/uQzLogAppenders/TextFile.h"
