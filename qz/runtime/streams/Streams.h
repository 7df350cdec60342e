// All streams of the runtime.
#pragma once

#include <qz/runtime/streams/FileStream.h>
#include <qz/runtime/streams/MemoryStream.h>
#include <qz/runtime/streams/NetEncoding.h>
#include <qz/runtime/streams/Stream.h>
#include <qz/runtime/streams/StringStream.h>
#include <qz/runtime/streams/ZStreams.h>
