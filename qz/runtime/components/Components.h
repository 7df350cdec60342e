// Components, collections and the bindings between properties.
#pragma once

#include <qz/runtime/components/Bindings.h>
#include <qz/runtime/components/BoundPath.h>
#include <qz/runtime/components/BoundValue.h>
#include <qz/runtime/components/Collection.h>
#include <qz/runtime/components/Component.h>
#include <qz/runtime/components/DescribeComponent.h>
#include <qz/runtime/components/LinkControlToProperty.h>
#include <qz/runtime/components/Observers.h>
