// Prints which QzCommon it runs on. The smallest program that links the library.
#include <common/Version.h>

#include <cstdio>
#include <string>

int main() {
    std::printf("Hello from QzCommon %s\n", std::string(qz::Version()).c_str());
    return 0;
}
