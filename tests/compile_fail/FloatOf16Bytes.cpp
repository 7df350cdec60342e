// expect: FloatsHave4Or8Bytes | is not a constant expression
#include <qz/runtime/objects/Describe.h>

#ifdef QZ_SHOULD_FAIL
using TFloat = long double;
#else
using TFloat = double;
#endif

constexpr qz::TTypeInfo cFloat = qz::DescribeType<TFloat>(qz::tkFloat, u"TFloat", u"Test");
