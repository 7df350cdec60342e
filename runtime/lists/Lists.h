// All lists of the runtime.
#pragma once

#include "runtime/lists/Dictionary.h"    // values by keys
#include "runtime/lists/DynArray.h"      // shared arrays, TBytes
#include "runtime/lists/InterfaceList.h" // counted references
#include "runtime/lists/List.h"          // items by index
#include "runtime/lists/ObjectList.h"    // objects, owned if wanted
#include "runtime/lists/Set.h"           // sets of enumerations and characters
#include "runtime/lists/StringList.h"    // lines of text
#include "runtime/lists/ThreadList.h"    // items shared by threads
