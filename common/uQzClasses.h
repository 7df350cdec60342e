// Unit uQzClasses: objects that know who ends them, and what the other units are built from.
#pragma once

// TQzObject, an object for use as it is or through interfaces,
// and the policy of who ends it.
#include "common/uQzClasses/QzObject.h"
// TQzObjectEx, an object that tells others of its end
// and is told of theirs.
#include "common/uQzClasses/QzObjectEx.h"
// TQzFreeNotifies, the same for any object,
// on any number of threads.
#include "common/uQzClasses/QzFreeNotifies.h"
// TQzObjectAdapter, which carries any object
// through an interface variable.
#include "common/uQzClasses/QzObjectAdapter.h"
// TQzComponent, a component whose life may be that of the references to it,
// and whose properties can follow others.
#include "common/uQzClasses/QzComponent.h"
