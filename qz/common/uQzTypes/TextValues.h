// Booleans and floats as text and back, as applications' data hold them.
//
//     QzStrToBool(u"yes");                     // true
//     QzBoolToStr(IsOpen, u"open", u"shut");
//     QzStrToFloat(u"1,5");                    // 1.5, as of "1.5"
//
// Any number of threads may call them.
#pragma once

#include <qz/runtime/base/Extended.h>
#include <qz/runtime/base/StringArg.h>

namespace qz {

// By the first character alone: true for 1, T, Y, t and y, false for any other and for an empty text.
QZ_API bool QzStrToBool(const TStringArg& AText) noexcept;

// One of the two texts.
inline UnicodeString QzBoolToStr(bool AValue, const TStringArg& ATrueText, const TStringArg& AFalseText) {
    return (AValue ? ATrueText : AFalseText).ToString();
}

// Reads as StrToFloat does by the settings of the process. What fails is read once more by the settings of
// the system with the other decimal separator: a point where theirs is something else, else a comma. So a
// point and a comma are both read as long as the process has kept the system's settings and these have one of
// the two. Raises the EConvertError of StrToFloat.
QZ_API Extended QzStrToFloat(const TStringArg& AText);
// Gives the default instead.
QZ_API Extended QzStrToFloatDef(const TStringArg& AText, Extended ADefault);
// Gives false, and 0 as the value, instead.
QZ_API bool QzTryStrToFloat(const TStringArg& AText, double& AValue);

} // namespace qz
