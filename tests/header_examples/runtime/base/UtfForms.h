#include <vector>

static std::u16string Wide;
static std::vector<char> Bytes;
