// Unit uQzNetEncoding: bytes as text for the network.
#pragma once

// TQzBinEncoding, how bytes are written as text.
#include <qz/common/uQzNetEncoding/BinEncoding.h>
// TQzBase64Encoding and its kin,
// encodings of memory, arrays, streams and text.
#include <qz/common/uQzNetEncoding/NetEncodingEx.h>
// TQzNetEncoding, all encodings by name.
#include <qz/common/uQzNetEncoding/QzNetEncoding.h>
// TURLEncoding, percent-encoding of text for URLs.
#include <qz/common/uQzNetEncoding/UrlEncoding.h>
