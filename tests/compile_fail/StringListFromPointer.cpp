// expect: no matching
#include "runtime/lists/StringList.h"

qz::TStringList Owning(true);

#ifdef QZ_SHOULD_FAIL
qz::TStringList Wrong("text");
#endif
