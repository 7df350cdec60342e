// expect: no matching
#include <qz/runtime/lists/ObjectList.h>

qz::TObjectList<> Seen(false);

#ifdef QZ_SHOULD_FAIL
qz::TObjectList<> Wrong("text");
#endif
