#include <common/Version.h>

#include <cstdio>
#include <string>

int main() {
    std::printf("%s\n", std::string(qz::Version()).c_str());
    return 0;
}
