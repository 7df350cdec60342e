// Unit uQzZLib: streams and texts, compressed and decompressed by zlib.
#pragma once

// EQzZLibException and its family, levels, strategies and kinds of flush.
#include <qz/common/uQzZLib/ZLibTypes.h>
// ZlCompressStream, ZlDecompressStream and the like.
#include <qz/common/uQzZLib/ZLibStreams.h>
