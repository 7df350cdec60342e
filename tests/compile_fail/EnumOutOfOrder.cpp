// expect: ItemsHaveToAscend | is not a constant expression
#include <qz/runtime/objects/Describe.h>

enum class TTone { tnLow, tnHigh };

QZ_TYPE_INFO(TTone);

#ifdef QZ_SHOULD_FAIL
constexpr qz::TEnumItem cTones[] = {{u"tnHigh", 1}, {u"tnLow", 0}};
#else
constexpr qz::TEnumItem cTones[] = {{u"tnLow", 0}, {u"tnHigh", 1}};
#endif
const qz::TTypeInfo qz::TTypeDescription<TTone>::Info = qz::DescribeEnum<TTone>(u"TTone", u"Test", cTones);
