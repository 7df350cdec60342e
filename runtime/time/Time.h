// Everything about dates and times: the value, its parts, the clock, time zones, and text.
#pragma once

#include "runtime/time/DateTime.h"
#include "runtime/time/DateTimeText.h"
#include "runtime/time/TimeSpan.h"
#include "runtime/time/TimeZone.h"
