#pragma once

#include <qz/runtime/streams/Streams.h>

inline qz::TMemoryStream Stream, Source, Target;
