#include <qz/platform/Fork.h>

#include <pthread.h>

#include <new>

namespace qz::platform {

void AroundFork(void (*ABefore)(), void (*AInParent)(), void (*AInChild)()) {
    if (pthread_atfork(ABefore, AInParent, AInChild) != 0)
        throw std::bad_alloc();
}

} // namespace qz::platform
