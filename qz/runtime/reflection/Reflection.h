// Reading and writing of published properties.
#pragma once

#include <qz/runtime/reflection/Properties.h>
