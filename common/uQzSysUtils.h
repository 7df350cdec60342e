// Unit uQzSysUtils: the helpers that everything else uses.
#pragma once

// EQzException and EQzAbort, exceptions with an error code,
// and the registry of exception classes by group and code.
#include "common/uQzSysUtils/Exceptions.h"
// QzTokenize, QzStringToList and QzListToString,
// texts taken apart into lists and joined again.
#include "common/uQzSysUtils/Tokenize.h"
// QzCharCase, the case of letters
// in a text or its words.
#include "common/uQzSysUtils/CharCase.h"
// QzTrim, QzPadLeft, QzStringReplace
// and other small helpers on texts.
#include "common/uQzSysUtils/Strings.h"
// QzRound, QzStringIncrement
// and other small helpers on numbers.
#include "common/uQzSysUtils/Numbers.h"
// QzSameText, QzSameVar, QzIf: equality
// and the choice between two values.
#include "common/uQzSysUtils/Compare.h"
// QzAge: ages in whole years.
#include "common/uQzSysUtils/Age.h"
