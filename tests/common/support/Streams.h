// Streams in memory by their content.
#pragma once

#include <memory>
#include <string>

#include <qz/common/uQzClasses/QzMemoryStream.h>

namespace qz {

inline std::string Content(const TQzMemoryStream& AStream) {
    return {reinterpret_cast<const char*>(AStream.FBufferStart), AStream.FContentSize};
}

// A stream at its first byte.
inline std::unique_ptr<TQzMemoryStream> StreamOf(std::string_view ABytes) {
    auto Stream = std::make_unique<TQzMemoryStream>(16);
    Stream->WriteBuffer(ABytes.data(), static_cast<std::int64_t>(ABytes.size()));
    Stream->SetPosition(0);
    return Stream;
}

} // namespace qz
