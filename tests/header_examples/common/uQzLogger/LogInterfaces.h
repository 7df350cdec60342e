#pragma once

#include <qz/runtime/objects/InterfacedObject.h>
