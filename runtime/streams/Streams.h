// Everything about streams: TStream, in memory, of text, and of files.
#pragma once

#include "runtime/streams/FileStream.h"
#include "runtime/streams/MemoryStream.h"
#include "runtime/streams/Stream.h"
#include "runtime/streams/StringStream.h"
