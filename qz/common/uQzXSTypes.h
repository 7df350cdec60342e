// Unit uQzXSTypes: the simple types of XML Schema as values that may be null.
#pragma once

// TXsAnySimpleType, a number that may be null,
// of which restrictions are made.
#include <qz/common/uQzXSTypes/XsAnySimpleType.h>
// TXsBoolean, and the result of comparisons.
#include <qz/common/uQzXSTypes/XsBoolean.h>
// TXsString and TXsStringRestrictions, texts.
#include <qz/common/uQzXSTypes/XsString.h>
// TXsInteger and TXsIntegerRestrictions, integers.
#include <qz/common/uQzXSTypes/XsInteger.h>
// TXsRational and TXsRationalRestrictions, floats.
#include <qz/common/uQzXSTypes/XsRational.h>
// TXsBinaryString, bytes as text.
#include <qz/common/uQzXSTypes/XsBinaryString.h>
