#include <qz/runtime/text/FloatText.h>
