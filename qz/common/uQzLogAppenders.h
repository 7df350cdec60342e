// Unit uQzLogAppenders: where messages go.
#pragma once

// TQzBaseAppender: the frame of all appenders.
#include <qz/common/uQzLogAppenders/BaseAppender.h>
// TQzDailyRollingFileAppender: a file
// for each day.
#include <qz/common/uQzLogAppenders/DailyRollingFileAppender.h>
// TQzEventLogAppender: an event in the log
// of the system for each message.
#include <qz/common/uQzLogAppenders/EventLogAppender.h>
// TQzFileAppender: a line of a file
// for each message.
#include <qz/common/uQzLogAppenders/FileAppender.h>
// TQzRollingFileAppender: a family of
// files of one size.
#include <qz/common/uQzLogAppenders/RollingFileAppender.h>
// TQzTextFile: the file that these
// write to.
#include <qz/common/uQzLogAppenders/TextFile.h>
