#include "platform/Fork.h"

#include <pthread.h>

#include <new>

namespace qz::platform {

void AroundFork(void (*ABefore)(), void (*AAfter)()) {
    if (pthread_atfork(ABefore, AAfter, AAfter) != 0)
        throw std::bad_alloc();
}

} // namespace qz::platform
