#pragma once

#include <qz/runtime/text/Format.h>
