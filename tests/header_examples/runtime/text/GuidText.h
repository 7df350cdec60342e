#pragma once

#include <qz/runtime/objects/Interface.h>
