// Everything that the other folders build on: strings of 16-bit text, sets, arrays and identifiers.
#pragma once

#include <qz/runtime/base/DynArray.h>
#include <qz/runtime/base/Extended.h>
#include <qz/runtime/base/Guid.h>
#include <qz/runtime/base/Set.h>
#include <qz/runtime/base/StringArg.h>
#include <qz/runtime/base/StringBlock.h>
#include <qz/runtime/base/StringUtils.h>
#include <qz/runtime/base/UnicodeString.h>
#include <qz/runtime/base/Utf.h>
#include <qz/runtime/base/UtfForms.h>
#include <qz/runtime/base/VarRec.h>
