#pragma once

#include <qz/common/uQzClasses/TextParser.h>

namespace qz {
extern TQzTextParser& Parser;
}
