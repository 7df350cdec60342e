// The object model: type descriptions, classes, objects, interfaces and exceptions.
#pragma once

#include <qz/runtime/objects/Class.h>
#include <qz/runtime/objects/ClassRegistry.h>
#include <qz/runtime/objects/Describe.h>
#include <qz/runtime/objects/DescribeException.h>
#include <qz/runtime/objects/EnumItems.h>
#include <qz/runtime/objects/Exceptions.h>
#include <qz/runtime/objects/Interface.h>
#include <qz/runtime/objects/InterfacedObject.h>
#include <qz/runtime/objects/Object.h>
#include <qz/runtime/objects/Persistent.h>
#include <qz/runtime/objects/Transport.h>
#include <qz/runtime/objects/TypeInfo.h>
#include <qz/runtime/objects/TypeNames.h>
