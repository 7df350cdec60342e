// The places of the system that the folders of all users lie in.
#pragma once

#include <optional>
#include <string>

namespace qz::platform::detail {

struct TSharedPlaces {
    std::string State = "/var/lib";
    std::string Data = "/usr/local/share";
    std::string Config = "/etc/xdg";
};

// As ShellFolder, for a system with these places.
std::optional<std::string> FindFolder(int ANumber, const TSharedPlaces& APlaces);

} // namespace qz::platform::detail
