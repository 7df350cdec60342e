#include <qz/runtime/components/Components.h>
