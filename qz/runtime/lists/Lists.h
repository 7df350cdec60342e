// All lists of the runtime.
#pragma once

#include <qz/runtime/lists/Dictionary.h>
#include <qz/runtime/lists/InterfaceList.h>
#include <qz/runtime/lists/List.h>
#include <qz/runtime/lists/ListTypes.h>
#include <qz/runtime/lists/ObjectList.h>
#include <qz/runtime/lists/StringList.h>
#include <qz/runtime/lists/Strings.h>
#include <qz/runtime/lists/ThreadList.h>
