#include <array>
#include <vector>

static std::vector<std::byte> Bytes;
static std::array<char, 16> Buffer;
