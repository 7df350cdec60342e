// A configurator that answers from a table.
#pragma once

#include <functional>
#include <map>

#include <qz/common/uQzLogger.h>
#include <qz/runtime/text/NumberText.h>

namespace qz {

// Answers from a table of "name/key", and notes each question.
class TConfiguration : public TInterfacedObject, public IQzLogConfiguratorEx {
    QZ_CLASS(TConfiguration, TInterfacedObject)
    QZ_INTERFACE_COUNTING(TInterfacedObject)

public:
    Variant GetLoggerValue(const UnicodeString& ALogger, const UnicodeString& AKey, TQzMainTypeKind AKind,
                           const Variant& ADefault) override {
        return Answer(ALogger, AKey, AKind, ADefault);
    }
    Variant GetAppenderValue(const UnicodeString& AAppender, const UnicodeString& AKey, TQzMainTypeKind AKind,
                             const Variant& ADefault) override {
        return Answer(AAppender, AKey, AKind, ADefault);
    }
    void ConfigureLogger(TQzLogger& ALogger) override {
        if (OnConfigure)
            OnConfigure(ALogger);
    }

    std::map<UnicodeString, Variant> Answers;
    UnicodeString Asked;
    std::function<void(TQzLogger& ALogger)> OnConfigure;

private:
    Variant Answer(const UnicodeString& AName, const UnicodeString& AKey, TQzMainTypeKind AKind,
                   const Variant& ADefault);
};

inline const TClassRec TConfiguration::ClassRec = DescribeClass<TConfiguration>(
    u"TConfiguration",
    {.Unit = u"Tests", .Interfaces = Interfaces<TConfiguration, IQzLogConfiguratorEx, IQzLogConfigurator>()});

inline Variant TConfiguration::Answer(const UnicodeString& AName, const UnicodeString& AKey,
                                      TQzMainTypeKind AKind, const Variant& ADefault) {
    Asked += AName + u'/' + AKey + u':' + IntToStr(static_cast<int>(AKind)) + u' ';
    const auto Found = Answers.find(AName + u'/' + AKey);
    return Found == Answers.end() ? ADefault : Found->second;
}

} // namespace qz
