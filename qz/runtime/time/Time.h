// Dates, times, their text and the local time zone.
#pragma once

#include <qz/runtime/time/DateTime.h>
#include <qz/runtime/time/DateTimeText.h>
#include <qz/runtime/time/LocalClock.h>
#include <qz/runtime/time/TimeSpan.h>
#include <qz/runtime/time/TimeZone.h>
