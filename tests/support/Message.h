// What a step raises, as text.
#pragma once

#include <qz/runtime/objects/Exceptions.h>

namespace qz {

// The message of the exception that the step raises; empty when it raises none.
template <class TStep> UnicodeString Message(const TStep& AStep) {
    try {
        AStep();
    } catch (const Exception& Error) {
        return Error.Message();
    }
    return {};
}

} // namespace qz
