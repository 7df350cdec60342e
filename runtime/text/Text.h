// Everything about text: the string types, their functions, numbers as text, formatting and its settings.
#pragma once

#include "runtime/text/AnsiString.h"
#include "runtime/text/CodePages.h"
#include "runtime/text/Encoding.h"
#include "runtime/text/Extended.h"
#include "runtime/text/FloatPattern.h"
#include "runtime/text/FloatText.h"
#include "runtime/text/Format.h"
#include "runtime/text/FormatSettings.h"
#include "runtime/text/NumberText.h"
#include "runtime/text/StringArg.h"
#include "runtime/text/StringUtils.h"
#include "runtime/text/UnicodeString.h"
#include "runtime/text/Utf.h"
#include "runtime/text/UtfForms.h"
#include "runtime/text/VarRec.h"
