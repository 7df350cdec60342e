// An appender that keeps its lines and calls a function of the test for each message.
#pragma once

#include <functional>
#include <mutex>
#include <string>
#include <vector>

#include <qz/common/uQzLogAppenders/BaseAppender.h>
#include <qz/common/uQzLogger/LoggerClass.h>

namespace qz {

class TMemoryAppender : public TQzBaseAppender {
    QZ_CLASS(TMemoryAppender, TQzBaseAppender)

public:
    void Write(const UnicodeString& ASource, const UnicodeString& ALogger, TQzLogLevel ALevel,
               const UnicodeString& AMessage, PQzDataRec AValue, TQzLogIndent AIndent) override {
        {
            const TScopedLock Hold(*this);
            Inherited::Write(ASource, ALogger, ALevel, AMessage, AValue, AIndent);
            UnicodeString Line =
                ASource + u'>' + ALogger + u' ' + QzLogLevels[static_cast<int>(ALevel)] + u' ' + AMessage;
            if (AValue != nullptr)
                Line += u'=' + AValue->ToString();
            if (AIndent != liIndentNone)
                Line += AIndent == liIndentIncrease ? u" {" : u" }";
            Lines.push_back(Line);
        }
        if (OnWrite)
            OnWrite(AMessage);
    }
    void Close() override {
        Inherited::Close();
        if (OnClose)
            OnClose();
    }
    // The lines since the last call, each followed by a bar.
    UnicodeString Take() {
        const TScopedLock Hold(*this);
        UnicodeString Result;
        for (const UnicodeString& Line : std::exchange(Lines, {}))
            Result += Line + u'|';
        return Result;
    }

    std::function<void(const UnicodeString& AMessage)> OnWrite;
    std::function<void()> OnClose;
    std::vector<UnicodeString> Lines;

protected:
    using TQzBaseAppender::TQzBaseAppender;
};

inline const TClassRec TMemoryAppender::ClassRec =
    DescribeLogBase<TMemoryAppender>(u"TMemoryAppender", {.Unit = u"Tests"});

// A tree of loggers for one test.
class TLogTree {
public:
    TLogTree() { CloseRootLogger(); }
    ~TLogTree() { CloseRootLogger(); }
    TLogTree(const TLogTree&) = delete;
    TLogTree& operator=(const TLogTree&) = delete;
};

// Adds an appender; the result is valid as long as the logger holds it.
inline TMemoryAppender& AddMemory(IQzLogger& ALogger, const UnicodeString& AName = u"") {
    TMemoryAppender* Result = TMemoryAppender::Create(nullptr, AName);
    ALogger.AddAppender(static_cast<IQzLogAppender*>(Result));
    return *Result;
}

} // namespace qz
