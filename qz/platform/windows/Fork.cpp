#include <qz/platform/Fork.h>

namespace qz::platform {

void AroundFork(void (*)(), void (*)(), void (*)()) {}

} // namespace qz::platform
