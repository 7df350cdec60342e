// Everything about text beyond the string class: 8-bit strings, code pages, numbers, formatting and patterns.
#pragma once

#include <qz/runtime/text/AnsiString.h>
#include <qz/runtime/text/BinaryText.h>
#include <qz/runtime/text/CodePages.h>
#include <qz/runtime/text/Encoding.h>
#include <qz/runtime/text/FloatPattern.h>
#include <qz/runtime/text/FloatText.h>
#include <qz/runtime/text/Format.h>
#include <qz/runtime/text/FormatSettings.h>
#include <qz/runtime/text/GuidText.h>
#include <qz/runtime/text/HtmlText.h>
#include <qz/runtime/text/NumberText.h>
#include <qz/runtime/text/RegEx.h>
#include <qz/runtime/text/Utf8Form.h>
