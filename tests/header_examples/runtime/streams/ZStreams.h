#include <qz/runtime/streams/MemoryStream.h>
