#include <qz/common/uQzDateTimeUtils/LocalZone.h>
