// Types by name and what they consist of; reading and writing of published properties.
#pragma once

#include <qz/runtime/reflection/Properties.h>
#include <qz/runtime/reflection/Rtti.h>
