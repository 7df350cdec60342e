// What the examples of this layer use without declaring it.
#pragma once

#include "tests/header_examples/Names.h"

#include <qz/runtime/base/StringUtils.h>
#include <qz/runtime/files/FileNames.h>
#include <qz/runtime/objects/DescribeException.h>
#include <qz/runtime/objects/Objects.h>
#include <qz/runtime/text/Format.h>
#include <qz/runtime/time/TimeZone.h>
#include <qz/runtime/values/VariantConvert.h>

namespace qz {

inline UnicodeString Name, Text, FText, Old, New;
inline TDateTime When, Entered;
inline Variant V;
inline Ref<IInterface> Greeter;
template <class... T> void Log(const T&...) {}
inline void ShowResult() {}

} // namespace qz
