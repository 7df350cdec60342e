// What keeps a child of fork() able to log. Internal.
#pragma once

namespace qz::detail {

// Has all locks of the loggers and appenders free in a child, unless some thread keeps one for five seconds on end. Called
// once, at the start of the program.
void WatchForks();

} // namespace qz::detail
