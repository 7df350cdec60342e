// ICU's data, which it loads at first use under locks of its own.
//
//     const std::lock_guard Hold(IcuLock()); // no fork happens while ICU loads or releases data
//     UCollator* Rules = ucol_open("de", &Status);
#pragma once

#include <mutex>

#include <unicode/unorm2.h>

namespace qz::platform::detail {

// Held around calls that open or close an object of ICU. A fork waits for it, so that the child never finds
// ICU's own locks held.
std::mutex& IcuLock() noexcept;

// The normalizer of a form of Normalization.h, or null.
const UNormalizer2* IcuNormalizer(int AForm) noexcept;

} // namespace qz::platform::detail
