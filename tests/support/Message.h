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

// Class and message of what the step raises, "EClass: message"; "nothing" when it raises nothing.
template <class TStep> UnicodeString Raised(const TStep& AStep) {
    UnicodeString Result = u"nothing";
    try {
        AStep();
    } catch (...) {
        HandleException([&](Exception& E) { Result = UnicodeString(E.ClassName()) + u": " + E.Message(); });
    }
    return Result;
}

} // namespace qz
