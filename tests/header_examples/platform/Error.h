#include <qz/platform/Files.h>
