// Environment variables for the time of a test.
#pragma once

#include <time.h>

#include <optional>
#include <string>
#include <vector>

#include <qz/platform/Environment.h>

namespace qz::platform {

class TVariables {
public:
    TVariables() = default;
    TVariables(const TVariables&) = delete;
    TVariables& operator=(const TVariables&) = delete;
    ~TVariables() {
        for (size_t Index = FOld.size(); Index-- > 0;)
            SetEnvironment(FOld[Index].Name, View(FOld[Index].Value));
        tzset(); // TZ may have been among them
    }

    // Without a value the variable is removed.
    void Set(const std::u16string& AName, const std::optional<std::u16string>& AValue) {
        FOld.push_back({AName, GetEnvironment(AName)});
        SetEnvironment(AName, View(AValue));
    }

private:
    struct TVariable {
        std::u16string Name;
        std::optional<std::u16string> Value;
    };

    static std::optional<std::u16string_view> View(const std::optional<std::u16string>& AValue) {
        return AValue ? std::optional<std::u16string_view>(*AValue) : std::nullopt;
    }

    std::vector<TVariable> FOld;
};

} // namespace qz::platform
