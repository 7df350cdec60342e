// Any bytes are decompressed or refused in each format; what is compressed is decompressed to the same bytes.
#include "fuzz/Fuzz.h"
#include <qz/common/uQzClasses/QzMemoryStream.h>
#include <qz/common/uQzZLib.h>
#include <qz/runtime/streams/MemoryStream.h>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* AData, std::size_t ASize) {
    static std::uint8_t Target[1 << 20];
    qz::TQzMemoryStream Source(const_cast<std::uint8_t*>(AData), ASize);
    for (const std::int32_t WindowBits : {15, -15, 31, 47, 0}) {
        qz::TQzMemoryStream Stream(Target, sizeof Target); // refuses what is longer
        try {
            qz::ZlDecompressStream(Source, Stream, WindowBits, true);
        } catch (const qz::Exception&) {}
    }
    try {
        qz::ZlDecompressStreamToString(Source, true);
    } catch (const qz::EQzZLibDecompressionError&) {}
    qz::TMemoryStream Packed;
    qz::ZlCompressStream(Source, Packed, static_cast<qz::TQzZLibCompressionLevel>(ASize % 4), true);
    Require(qz::ZlDecompressStreamToAnsiString(Packed, true).View() == TextOf(AData, ASize));
    return 0;
}
