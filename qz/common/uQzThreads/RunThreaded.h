// Running a procedure on a new thread or on the main thread, and the names of threads.
//
//     Ref<IQzSimpleEvent> Done = QzRunThreaded([](IQzSimpleEvent*) { Import(); });
//     ...
//     Done->WaitFor(cInfinite);
//
//     QzRunInMainThread([&] { Window.SetTitle(Title); }, true); // waits; exceptions are raised here
//
// The main thread runs queued work in TThread::CheckSynchronize. All functions may be
// called on any thread.
#pragma once

#include <functional>

#include <qz/common/uQzThreads/SimpleEvent.h>
#include <qz/runtime/objects/Exceptions.h>

namespace qz {

using TQzProc = std::function<void()>;
using TQzEventProc = std::function<void(IQzSimpleEvent*)>;
// Receives a failure. A foreign exception becomes an Exception with the same message.
using TQzErrorEvent = std::function<void(Exception&)>;

// Names the calling thread for QzGetThreadName and for debuggers and process viewers. The first 255
// characters count, kept as UTF-8 of at most 255 bytes; none is torn.
QZ_API void QzSetThreadName(const TStringArg& AName);
// The name that the calling thread was given by QzSetThreadName; empty without one.
QZ_API UnicodeString QzGetThreadName();

// Runs AProc on a new thread and sets AEvent at the end in any case. A failure shows only in that the work
// is not done. Raises EThread when the system has no thread to give; AEvent is not set then.
QZ_API void QzRunThreaded(TQzProc AProc, Ref<IQzSimpleEvent> AEvent);
// The same with a new event, which the procedure gets too; it is set at the end in any case.
QZ_API Ref<IQzSimpleEvent> QzRunThreaded(TQzEventProc AProc);

// Runs AProc on the main thread: at once when that is the calling thread, else at its next CheckSynchronize.
//
// A failure of AProc goes to AOnError, on the main thread. Without AOnError it is raised in the calling
// thread, as the same object, which with AWaitForCompletion waits until the procedure has run. Without
// waiting AOnError must be given: EAssertionFailed, "An Error handler is required when AWaitForCompletion is
// set to false!", and AProc does not run. A caller that waits must not be one that the main thread waits for.
QZ_API void QzRunInMainThread(TQzProc AProc, bool AWaitForCompletion, TQzErrorEvent AOnError = {});

// Queues AProc for the main thread, also when the main thread calls, and gives the event that is set when it
// has run. The main thread must not wait for it without CheckSynchronize: it would wait for its own queue.
QZ_API Ref<IQzSimpleEvent> QzQueue(TQzEventProc AProc);

} // namespace qz
