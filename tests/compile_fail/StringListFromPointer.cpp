// expect: no matching
#include <qz/runtime/lists/StringList.h>

qz::TStringList Owning(true);

#ifdef QZ_SHOULD_FAIL
qz::TStringList Wrong("text");
#endif
