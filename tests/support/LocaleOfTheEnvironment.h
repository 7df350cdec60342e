// A locale in the environment of a test; for Linux, where the settings follow it.
#pragma once

#include "tests/support/Variables.h"
#include <qz/runtime/base/UnicodeString.h>

namespace qz {

class TLocaleOfTheEnvironment {
public:
    explicit TLocaleOfTheEnvironment(const char* AName) {
        FVariables.Set(u"LC_ALL", std::u16string(UnicodeString(AName)));
    }

private:
    platform::TVariables FVariables;
};

} // namespace qz
