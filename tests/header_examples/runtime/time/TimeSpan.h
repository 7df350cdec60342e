#pragma once

#include <qz/runtime/time/TimeZone.h>
