// Unit uQzSysUtils: the helpers that everything else uses.
#pragma once

// EQzException and EQzAbort, exceptions with an error code,
// and the registry of exception classes by group and code.
#include <qz/common/uQzSysUtils/Exceptions.h>
// QzTokenize, QzStringToList and QzListToString,
// texts taken apart into lists and joined again.
#include <qz/common/uQzSysUtils/Tokenize.h>
// QzCharCase, the case of letters
// in a text or its words.
#include <qz/common/uQzSysUtils/CharCase.h>
// QzTrim, QzPadLeft, QzStringReplace
// and other small helpers on texts.
#include <qz/common/uQzSysUtils/Strings.h>
// QzRound, QzStringIncrement
// and other small helpers on numbers.
#include <qz/common/uQzSysUtils/Numbers.h>
// QzSameText, QzSameVar, QzIf: equality
// and the choice between two values.
#include <qz/common/uQzSysUtils/Compare.h>
// QzAge: ages in whole years.
#include <qz/common/uQzSysUtils/Age.h>
