// TUtf8Form: the UTF-8 form of a 16-bit text for the duration of a call; short text takes no allocation.
//
//     const TUtf8Form Bytes(u"Zoë");
//     Show(Bytes.View());
//
// Ill-formed text is converted as Utf.h states. An object belongs to one thread.
#pragma once

#include <cstddef>
#include <memory>
#include <span>
#include <string_view>

#include <qz/platform/Export.h>

namespace qz {

class QZ_API TUtf8Form {
public:
    explicit TUtf8Form(std::u16string_view AText);
    TUtf8Form(const TUtf8Form&) = delete;
    TUtf8Form& operator=(const TUtf8Form&) = delete;

    std::string_view View() const noexcept { return {FLong ? FLong.get() : FShort, FSize}; }
    std::span<const std::byte> Bytes() const noexcept { return std::as_bytes(std::span(View())); }

private:
    char FShort[360];
    std::size_t FSize;
    std::unique_ptr<char[]> FLong;
};

} // namespace qz
