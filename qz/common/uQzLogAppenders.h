// Unit uQzLogAppenders: appenders, which write messages.
#pragma once

// TQzBaseAppender: the base of all appenders.
#include <qz/common/uQzLogAppenders/BaseAppender.h>
// TQzDailyRollingFileAppender: a new file each day.
#include <qz/common/uQzLogAppenders/DailyRollingFileAppender.h>
// TQzEventLogAppender: the log of the system.
#include <qz/common/uQzLogAppenders/EventLogAppender.h>
// TQzFileAppender: a line of a file for each message.
#include <qz/common/uQzLogAppenders/FileAppender.h>
// TQzRollingFileAppender: numbered files of limited size.
#include <qz/common/uQzLogAppenders/RollingFileAppender.h>
// TQzTextFile: the file that they write.
#include <qz/common/uQzLogAppenders/TextFile.h>
