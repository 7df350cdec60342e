// How an application configures its loggers: a configurator of its own, which here reads lines of the form
//
//     root.Level = 2
//     root.app.db.Appenders = errors, screen
//     screen.class = TScreenAppender
//
// from the file that is given, or from the text below, and an appender of its own, found by the name of its
// class.
#include <qz/common/uQzLogAppenders.h>
#include <qz/common/uQzLogLayouts.h>
#include <qz/common/uQzLogger.h>
#include <qz/common/uQzTypes.h>

#include <fstream>
#include <iostream>
#include <map>
#include <sstream>

#include <qz/runtime/base/StringUtils.h>
#include <qz/runtime/files/FileSystem.h>
#include <qz/runtime/values/VariantArray.h>

using namespace qz;

namespace {

constexpr const char* cDefaults =
    R"(# Levels: 0 all, 1 trace, 2 debug, 3 info, 4 warn, 5 error, 6 fatal, 7 none
root.Level = 3
root.Appenders = screen
root.app.Level = 2
root.app.db.Level = 1
root.app.db.Appenders = errors
root.quiet.Level = 7
root.quiet.Additive = false

screen.class = TScreenAppender
screen.Layout = TQzSimpleLayout
errors.class = TScreenAppender
errors.Layout = TQzSimpleLayout
errors.Stream = stderr
)";

// Lines to the standard output, or to the error output where the configuration says so.
class TScreenAppender : public TQzBaseAppender {
    QZ_CLASS(TScreenAppender, TQzBaseAppender)

public:
    void SetConfig(IQzLogConfigurator* AConfigurator) override {
        Inherited::SetConfig(AConfigurator);
        if (AConfigurator != nullptr)
            FToErrors = QzVarToStr(AConfigurator->GetAppenderValue(Name(), u"Stream", mtkString, u""), u"",
                                   false) == UnicodeString(u"stderr");
    }
    void Write(const UnicodeString& ASource, const UnicodeString& ALogger, TQzLogLevel ALevel,
               const UnicodeString& AMessage, PQzDataRec AValue, TQzLogIndent AIndent) override {
        const TScopedLock Hold(*this);
        Inherited::Write(ASource, ALogger, ALevel, AMessage, AValue, AIndent);
        const UnicodeString Line =
            Layout() == nullptr ? AMessage : Layout()->FormatLine(ASource, ALevel, AMessage, AValue, AIndent);
        (FToErrors ? std::cerr : std::cout) << (FToErrors ? "[errors] " : "") << Line << '\n';
    }

protected:
    using TQzBaseAppender::TQzBaseAppender;

private:
    bool FToErrors = false;
};

const TClassRec TScreenAppender::ClassRec =
    DescribeLogBase<TScreenAppender>(u"TScreenAppender", {.Unit = u"LogConfig"});

// The values of a text, each under its whole name.
class TTextConfigurator : public TInterfacedObject, public IQzLogConfigurator {
    QZ_CLASS(TTextConfigurator, TInterfacedObject)
    QZ_INTERFACE_COUNTING(TInterfacedObject)

public:
    Variant GetLoggerValue(const UnicodeString& ALogger, const UnicodeString& AKey, TQzMainTypeKind AKind,
                           const Variant& ADefault) override {
        return Find(ALogger, AKey, AKind, ADefault);
    }
    Variant GetAppenderValue(const UnicodeString& AAppender, const UnicodeString& AKey, TQzMainTypeKind AKind,
                             const Variant& ADefault) override {
        return Find(AAppender, AKey, AKind, ADefault);
    }

protected:
    explicit TTextConfigurator(std::istream& AText) {
        for (std::string Line; std::getline(AText, Line);) {
            const auto Equal = Line.find('=');
            if (!Line.empty() && Line[0] != '#' && Equal != std::string::npos)
                FValues[Trim(Line.substr(0, Equal))] = Trim(Line.substr(Equal + 1));
        }
    }

private:
    // The text as a value of that kind.
    Variant Find(const UnicodeString& AName, const UnicodeString& AKey, TQzMainTypeKind AKind,
                 const Variant& ADefault) const {
        const auto Found = FValues.find(AName + u'.' + AKey);
        if (Found == FValues.end())
            return ADefault;
        switch (AKind) {
        case mtkInteger: return QzVarToInt(Found->second, QzVarToInt(ADefault, 0, false), false);
        case mtkBoolean: return QzStrToBool(Found->second);
        case mtkArray: return Names(Found->second);
        default: return Found->second;
        }
    }
    static Variant Names(const UnicodeString& AText) {
        const std::u16string_view Text = AText;
        Variant Result = VarArrayOf({});
        for (std::size_t Here = 0, Next = 0; Next != std::u16string_view::npos; Here = Next + 1) {
            Next = Text.find(u',', Here);
            const int Count = VarArrayHighBound(Result) + 1;
            VarArrayRedim(Result, Count);
            VarArrayPut(Result, Trim(UnicodeString(Text.substr(Here, Next - Here))), Count);
        }
        return Result;
    }

    std::map<UnicodeString, UnicodeString> FValues;
};

const TClassRec TTextConfigurator::ClassRec = DescribeClass<TTextConfigurator>(
    u"TTextConfigurator",
    {.Unit = u"LogConfig", .Interfaces = Interfaces<TTextConfigurator, IQzLogConfigurator>()});

void Work() {
    const Ref<IQzLogger> Log = Logger().GetLogger("app.db");
    const TQzMethodScope Scope(Log, "Connect", llDebug);
    Log->Debug("asking %s on port %d", {u"localhost", 5432});
    Log->Info("connected");
    Log->Count("connections", 1);
    Logger().GetLogger("quiet")->Fatal("nobody sees this");
}

} // namespace

int main(int ACount, char** AArguments) {
    std::ifstream File;
    std::istringstream Defaults(cDefaults);
    if (ACount > 1) {
        File.open(AArguments[1]);
        if (!File || DirectoryExists(AArguments[1])) {
            std::cerr << "logconfig: cannot read " << AArguments[1] << '\n';
            return 2;
        }
    }
    RegisteredAppenders().Add(TQzLogBaseClass::Of<TScreenAppender>());
    try {
        const Ref<IQzLogConfigurator> Configurator =
            TTextConfigurator::Create(ACount > 1 ? static_cast<std::istream&>(File) : Defaults);
        Logger().SetConfig(Configurator);
        Work();
    } catch (const Exception& Error) {
        std::cerr << "logconfig: " << Error.Message() << '\n';
        return 1;
    }
    return 0;
}
