#include <qz/common/uQzNetEncoding/QzNetEncoding.h>
