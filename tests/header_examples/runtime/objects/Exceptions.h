#pragma once

#include <qz/runtime/objects/DescribeException.h>
