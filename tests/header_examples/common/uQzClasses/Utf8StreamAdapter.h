#pragma once

#include <qz/runtime/streams/Streams.h>
