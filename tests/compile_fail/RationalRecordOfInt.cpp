// expect: The TXsRational<T> only supports float types!
#include <qz/common/uQzXSTypes.h>

qz::TXsRational<double> Price;

#ifdef QZ_SHOULD_FAIL
qz::TXsRational<int> Count;
#endif
