// What the runtime tells of its types.
#pragma once

#include "runtime/reflection/BasicTypes.h" // the types that everybody knows
#include "runtime/reflection/Describe.h"   // how a type is described
#include "runtime/reflection/EnumNames.h"  // the values of enumerations and sets by name
#include "runtime/reflection/Properties.h" // published properties by name
#include "runtime/reflection/RawValues.h"  // numbers and texts in raw storage
#include "runtime/reflection/TypeInfo.h"   // descriptions
