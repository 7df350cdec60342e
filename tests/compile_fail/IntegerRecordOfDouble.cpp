// expect: The TXsInteger<T> only supports integer types!
#include <qz/common/uQzXSTypes.h>

qz::TXsInteger<int> Count;

#ifdef QZ_SHOULD_FAIL
qz::TXsInteger<double> Price;
#endif
