// Everything about dates and times: the value, its parts, the clock, and text.
#pragma once

#include "runtime/time/DateTime.h"
#include "runtime/time/DateTimeText.h"
