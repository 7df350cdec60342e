#pragma once

#include <qz/common/uQzLogAppenders.h>
