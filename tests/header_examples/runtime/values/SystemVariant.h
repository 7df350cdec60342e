#include <qz/runtime/values/VariantArray.h>

// As <windows.h> declares them.
struct tagVARIANT {
    std::uint64_t Bits[3];
};
using VARIANT = tagVARIANT;
inline void VariantInit(VARIANT*) {}
inline void VariantClear(VARIANT*) {}
