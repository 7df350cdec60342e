// TGUID as text: the registry form "{XXXXXXXX-XXXX-XXXX-XXXX-XXXXXXXXXXXX}".
//
//     UnicodeString Text = GUIDToString(IInterface::IID);
//     TGUID Id = StringToGUID(Text);
//
// Any thread may call these functions.
#pragma once

#include <qz/runtime/base/Guid.h>
#include <qz/runtime/base/StringArg.h>

namespace qz {

// The registry form, with braces and capital letters.
QZ_API UnicodeString GUIDToString(const TGUID& AGuid);

// Reads the registry form, letters in either case. Raises EConvertError for any other text.
QZ_API TGUID StringToGUID(const TStringArg& AText);

} // namespace qz
