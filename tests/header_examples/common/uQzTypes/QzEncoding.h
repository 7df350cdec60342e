#pragma once

inline qz::RawByteString Bytes;
