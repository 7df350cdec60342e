#include <qz/platform/ShellFolders.h>

#include <algorithm>
#include <cerrno>
#include <initializer_list>
#include <optional>
#include <string_view>
#include <utility>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <qz/platform/linux/NativeEnvironment.h>
#include <qz/platform/linux/NativeText.h>
#include <qz/platform/linux/SharedPlaces.h>
#include <qz/platform/linux/UserDirs.h>

namespace qz::platform {

namespace {

// Where a folder lies.
enum class TPlace { Chosen, Home, Config, Data, Cache, State, Shared, SharedData, SharedConfig, System };

struct TFolder {
    int Number;
    TPlace Place;
    std::string_view Name; // below the place
    std::string_view Key;  // in the user's choice
};

constexpr TFolder cFolders[] = {
    {0, TPlace::Chosen, "Desktop", "DESKTOP"},
    {2, TPlace::Data, "applications", {}},
    {5, TPlace::Chosen, "Documents", "DOCUMENTS"},
    {6, TPlace::Data, "favorites", {}},
    {7, TPlace::Config, "autostart", {}},
    {8, TPlace::Data, "recent", {}},
    {9, TPlace::Data, "sendto", {}},
    {11, TPlace::Data, "applications", {}},
    {12, TPlace::Chosen, "Documents", "DOCUMENTS"},
    {13, TPlace::Chosen, "Music", "MUSIC"},
    {14, TPlace::Chosen, "Videos", "VIDEOS"},
    {16, TPlace::Chosen, "Desktop", "DESKTOP"},
    {19, TPlace::Data, "nethood", {}},
    {20, TPlace::System, "/usr/share/fonts", {}},
    {21, TPlace::Chosen, "Templates", "TEMPLATES"},
    {22, TPlace::SharedData, "applications", {}},
    {23, TPlace::SharedData, "applications", {}},
    {24, TPlace::SharedConfig, "autostart", {}},
    {25, TPlace::Shared, "Desktop", {}},
    {26, TPlace::Config, {}, {}},
    {27, TPlace::Data, "printhood", {}},
    {28, TPlace::Data, {}, {}},
    {29, TPlace::Config, "autostart", {}},
    {30, TPlace::SharedConfig, "autostart", {}},
    {31, TPlace::Shared, "Favorites", {}},
    {32, TPlace::Cache, {}, {}},
    {33, TPlace::State, "cookies", {}},
    {34, TPlace::State, {}, {}},
    {35, TPlace::Shared, {}, {}},
    {36, TPlace::System, "/", {}},
    {37, TPlace::System, "/usr/lib", {}},
    {38, TPlace::System, "/opt", {}},
    {39, TPlace::Chosen, "Pictures", "PICTURES"},
    {40, TPlace::Home, {}, {}},
    {41, TPlace::System, "/usr/lib", {}},
    {42, TPlace::System, "/opt", {}},
    {43, TPlace::System, "/opt", {}},
    {44, TPlace::System, "/opt", {}},
    {45, TPlace::Shared, "Templates", {}},
    {46, TPlace::Shared, {}, {}},
    {47, TPlace::SharedData, "applications", {}},
    {48, TPlace::Data, "applications", {}},
    {53, TPlace::Shared, "Music", {}},
    {54, TPlace::Shared, "Pictures", {}},
    {55, TPlace::Shared, "Videos", {}},
    {56, TPlace::System, "/usr/share", {}},
    {59, TPlace::Data, "burn", {}},
};

bool IsDirectory(const std::string& APath) {
    struct stat Status;
    return stat(APath.c_str(), &Status) == 0 && S_ISDIR(Status.st_mode);
}

bool IsWritable(const std::string& APath) {
    return IsDirectory(APath) && faccessat(AT_FDCWD, APath.c_str(), W_OK | X_OK, AT_EACCESS) == 0;
}

// Services are given theirs in a list with colons.
std::string OfService() {
    const std::optional<std::string> List = detail::NativeEnvironment("STATE_DIRECTORY");
    if (!List || !List->starts_with('/'))
        return {};
    return detail::WithoutSlash(List->substr(0, List->find(':')));
}

struct TFound {
    std::string Path; // empty if the home is unknown
    bool IsOwn;       // the user's
};

TFound Own(TPlace APlace) {
    switch (APlace) {
    case TPlace::Config: return {detail::BaseDirectory("XDG_CONFIG_HOME", ".config"), true};
    case TPlace::Data: return {detail::BaseDirectory("XDG_DATA_HOME", ".local/share"), true};
    case TPlace::Cache: return {detail::BaseDirectory("XDG_CACHE_HOME", ".cache"), true};
    case TPlace::State: return {detail::BaseDirectory("XDG_STATE_HOME", ".local/state"), true};
    default: return {detail::HomeDirectory(), true};
    }
}

// The first place that the process may write, else the user's own.
TFound Shared(std::initializer_list<std::string> APlaces, TPlace AElse) {
    for (const std::string& Place : APlaces) {
        if (!Place.empty() && IsWritable(Place))
            return {Place, false};
    }
    return Own(AElse);
}

TFound PathOf(const TFolder& AFolder, const detail::TSharedPlaces& APlaces) {
    switch (AFolder.Place) {
    case TPlace::System: return {std::string(AFolder.Name), false};
    case TPlace::Chosen: return {detail::UserDirectory(AFolder.Key, AFolder.Name), true};
    case TPlace::Shared: return Shared({OfService(), APlaces.State}, TPlace::State);
    case TPlace::SharedData: return Shared({APlaces.Data}, TPlace::Data);
    case TPlace::SharedConfig: return Shared({APlaces.Config}, TPlace::Config);
    default: return Own(AFolder.Place);
    }
}

// Creates the missing directories of the path.
bool MakePath(const std::string& APath, mode_t AMode) {
    for (std::size_t End = APath.find('/', 1);; End = APath.find('/', End + 1)) {
        const std::string Part = APath.substr(0, End);
        if (!IsDirectory(Part) && mkdir(Part.c_str(), AMode) != 0 && errno != EEXIST)
            return false;
        if (End == std::string::npos)
            return IsDirectory(APath);
    }
}

// Whether the path lies in a home that does not exist.
bool LacksHome(const std::string& APath) {
    const std::string Home = detail::HomeDirectory();
    return !Home.empty() && APath.starts_with(Home + '/') && !IsDirectory(Home);
}

} // namespace

std::optional<std::string> detail::FindFolder(int ANumber, const TSharedPlaces& APlaces) {
    const auto* const Folder = std::ranges::find(cFolders, ANumber, &TFolder::Number);
    if (Folder == std::end(cFolders))
        return std::nullopt;
    TFound Found = PathOf(*Folder, APlaces);
    if (Folder->Place != TPlace::System && Folder->Place != TPlace::Chosen)
        Found.Path = Below(std::move(Found.Path), Folder->Name);
    const bool Ok = Found.Path.empty() || LacksHome(Found.Path) ? false
        : Folder->Place == TPlace::System                       ? true
        : Folder->Place == TPlace::Home                         ? IsDirectory(Found.Path)
                                        : MakePath(Found.Path, Found.IsOwn ? 0700 : 0755);
    return Ok ? std::optional(std::move(Found.Path)) : std::nullopt;
}

std::optional<std::u16string> ShellFolder(int ANumber) {
    const std::optional<std::string> Path = detail::FindFolder(ANumber, {});
    return Path ? std::optional(detail::FromNative(*Path)) : std::nullopt;
}

} // namespace qz::platform
