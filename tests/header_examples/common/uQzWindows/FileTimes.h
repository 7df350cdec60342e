#pragma once

#include <qz/common/uQzDateTimeUtils/LocalZone.h>
