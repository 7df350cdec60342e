// TQzMethodScope: EnterMethod and ExitMethod around a block, also when an exception leaves it.
//
//     void TServer::Run() {
//         const TQzMethodScope Scope(Log, this, "Run");
//         ...
//     }
//
// It belongs to one thread. It holds a reference to the logger, and takes the class of the object at the
// start.
#pragma once

#include <qz/common/uQzLogger/LoggerInterface.h>
#include <qz/runtime/objects/Object.h>

namespace qz {

class [[nodiscard]] TQzMethodScope {
public:
    // A null logger logs nothing.
    TQzMethodScope(IQzLogger* ALogger, const TStringArg& AMethod, TQzLogLevel ALevel = llTrace)
        : FLogger(ALogger),
          FMethod(AMethod.ToString()),
          FLevel(ALevel) {
        if (FLogger != nullptr)
            FLogger->EnterMethod(FMethod, FLevel);
    }
    TQzMethodScope(IQzLogger* ALogger, const TObject* AObject, const TStringArg& AMethod,
                   TQzLogLevel ALevel = llTrace)
        : TQzMethodScope(
              ALogger,
              UnicodeString(AObject == nullptr ? std::u16string_view(u"nil") : AObject->ClassName()) + u'.' +
                  AMethod.View(),
              ALevel) {}
    ~TQzMethodScope() {
        if (FLogger != nullptr)
            FLogger->ExitMethod(FMethod, FLevel);
    }
    TQzMethodScope(const TQzMethodScope&) = delete;
    TQzMethodScope& operator=(const TQzMethodScope&) = delete;

private:
    Ref<IQzLogger> FLogger;
    UnicodeString FMethod;
    TQzLogLevel FLevel;
};

} // namespace qz
