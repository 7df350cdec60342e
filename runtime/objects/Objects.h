// All of the runtime's object model.
#pragma once

#include "runtime/objects/Bindings.h"              // properties that follow others
#include "runtime/objects/Class.h"                 // classes at run time
#include "runtime/objects/ClassRegistry.h"         // classes and types by name
#include "runtime/objects/Collection.h"            // items of one class
#include "runtime/objects/Component.h"             // named objects with an owner
#include "runtime/objects/DescribeComponent.h"     // class records of components
#include "runtime/objects/Guid.h"                  // identifiers of interfaces
#include "runtime/objects/Interface.h"             // interfaces and references to them
#include "runtime/objects/InterfacedObject.h"      // objects that live by references
#include "runtime/objects/LinkControlToProperty.h" // properties that follow controls
#include "runtime/objects/Object.h"                // the root
#include "runtime/objects/Observers.h"             // who hears of a control's value
#include "runtime/objects/Persistent.h"            // objects that can be assigned
