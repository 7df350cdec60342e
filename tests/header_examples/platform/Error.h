#pragma once

#include <qz/platform/Files.h>
