// The places of the system that the folders of all users lie in.
#pragma once

#include <string>

namespace qz::platform::detail {

struct TSharedPlaces {
    std::string State = "/var/lib";
    std::string Data = "/usr/local/share";
    std::string Config = "/etc/xdg";
};

// As ShellFolder, for a system with these places.
bool FindFolder(int ANumber, const TSharedPlaces& APlaces, std::string& APath);

} // namespace qz::platform::detail
