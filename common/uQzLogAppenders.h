// Unit uQzLogAppenders: where messages go.
#pragma once

// TQzBaseAppender: the frame of all appenders.
#include "common/uQzLogAppenders/BaseAppender.h"
