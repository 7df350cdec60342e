#pragma once

#include <qz/runtime/streams/Streams.h>

inline qz::TMemoryStream Memory;
