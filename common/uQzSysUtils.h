// Unit uQzSysUtils: the helpers that everything else uses.
#pragma once

// EQzException and EQzAbort, exceptions with an error code,
// and the registry of exception classes by group and code.
#include "common/uQzSysUtils/Exceptions.h"
