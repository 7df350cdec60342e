// expect: TList<bool> has no bool to refer to
#include <qz/runtime/lists/List.h>

qz::TList<unsigned char> Flags;

#ifdef QZ_SHOULD_FAIL
qz::TList<bool> Bits;
#endif
