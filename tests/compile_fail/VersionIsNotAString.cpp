// expect: could not convert | no viable conversion
#include <qz/common/Version.h>

#include <string>

std::string_view Seen() {
    return qz::Version();
}

#ifdef QZ_SHOULD_FAIL
std::string Copied() {
    return qz::Version();
}
#endif
