// Unit uQzThreads: locks, events and running work on other threads.
#pragma once

// TQzCriticalSection, a recursive lock that knows its owner
// and can be tried for a time.
#include <qz/common/uQzThreads/CriticalSection.h>
// IQzSimpleEvent and TQzSimpleEvent, an event
// that is shared without an owner.
#include <qz/common/uQzThreads/SimpleEvent.h>
// TQzMultiReadSingleWrite, many readers or one writer,
// on the platform's slim lock.
#include <qz/common/uQzThreads/MultiReadLock.h>
// QzRunThreaded, QzRunInMainThread, QzQueue
// and the names of threads.
#include <qz/common/uQzThreads/RunThreaded.h>
