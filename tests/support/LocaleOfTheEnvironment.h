// A locale in the environment of a test; for Linux, where the settings follow it.
#pragma once

#include <stdlib.h>

#include <optional>
#include <string>

namespace qz {

class TLocaleOfTheEnvironment {
public:
    explicit TLocaleOfTheEnvironment(const char* AName) {
        if (const char* Before = getenv("LC_ALL"))
            FBefore = Before;
        setenv("LC_ALL", AName, 1);
    }
    ~TLocaleOfTheEnvironment() {
        if (FBefore)
            setenv("LC_ALL", FBefore->c_str(), 1);
        else
            unsetenv("LC_ALL");
    }
    TLocaleOfTheEnvironment(const TLocaleOfTheEnvironment&) = delete;
    TLocaleOfTheEnvironment& operator=(const TLocaleOfTheEnvironment&) = delete;

private:
    std::optional<std::string> FBefore;
};

} // namespace qz
