// Unit uQzUUCode: files as uuencoded text, with their names and modes, and back.
#pragma once

// QzUUEncode: a file to text.
#include <qz/common/uQzUUCode/UUEncode.h>
// QzUUDecode: text to a file.
#include <qz/common/uQzUUCode/UUDecode.h>
