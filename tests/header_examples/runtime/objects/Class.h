#pragma once

#include <qz/runtime/objects/Objects.h>
