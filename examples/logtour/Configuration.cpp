#include "Configuration.h"

#include <qz/common/uQzLogAppenders.h>
#include <qz/common/uQzLogLayouts.h>

#include <map>

#include <qz/runtime/base/StringUtils.h>
#include <qz/runtime/values/VariantArray.h>

using namespace qz;

namespace {

// Lines wait up to a second for others, but for fatal ones.
constexpr int cBuffer = 256 << 10;
constexpr int cFlushed = static_cast<int>(llFatal);
constexpr int cAll = static_cast<int>(llTrace);
constexpr int cFileSize = 16 << 20; // of a file of the family that rolls by size

// A layout of the application's own, found by the name of its class: files hold anything, so control
// characters have to be replaced for the document to stay well-formed.
class TStrictXmlLayout : public TQzXmlLayout {
    QZ_CLASS(TStrictXmlLayout, TQzXmlLayout)

public:
    void AfterConstruction() override {
        Inherited::AfterConstruction();
        SetStrictXml(true);
    }

protected:
    using TQzXmlLayout::TQzXmlLayout;
};

const TClassRec TStrictXmlLayout::ClassRec =
    DescribeLogBase<TStrictXmlLayout>(u"TStrictXmlLayout", {.Unit = u"LogTour"});

class TConfigurator : public TInterfacedObject, public IQzLogConfigurator {
    QZ_CLASS(TConfigurator, TInterfacedObject)
    QZ_INTERFACE_COUNTING(TInterfacedObject)

public:
    // There is a logger for each file that is read; the table has one entry for all of them.
    Variant GetLoggerValue(const UnicodeString& ALogger, const UnicodeString& AKey, TQzMainTypeKind,
                           const Variant& ADefault) override {
        return Find(StartsStr(u"root.tour.", ALogger) ? u"root.tour.*" : ALogger, AKey, ADefault);
    }
    Variant GetAppenderValue(const UnicodeString& AAppender, const UnicodeString& AKey, TQzMainTypeKind,
                             const Variant& ADefault) override {
        return Find(AAppender, AKey, ADefault);
    }

protected:
    explicit TConfigurator(const UnicodeString& ADirectory)
        : FValues{
              // The lines of a file bear the name of the logger that has the appender, so each has all four;
              // the one above keeps them, and their files open, from one file to the next.
              {u"root.tour.Level", cAll},
              {u"root.tour.Appenders", VarArrayOf({u"plain", u"sizes", u"days", u"table"})},
              {u"root.tour.*.Level", cAll},
              {u"root.tour.*.Appenders", VarArrayOf({u"plain", u"sizes", u"days", u"table"})},
              {u"root.tour.*.Additive", false},

              {u"plain.class", QzFileAppender},
              {u"plain.Layout", QzSimpleLayout},
              {u"plain.FileName", ADirectory + u"plain.log"},
              {u"plain.AppendExisting", false},
              {u"plain.BufferSize", cBuffer},
              {u"plain.FlushLevel", cFlushed},

              {u"sizes.class", QzRollingFileAppender},
              {u"sizes.Layout", QzSimpleLayout},
              {u"sizes.FileName", ADirectory + u"sizes/tour.log"},
              {u"sizes.AppendExisting", false},
              {u"sizes.BufferSize", cBuffer},
              {u"sizes.FlushLevel", cFlushed},
              {u"sizes.MaxFileSize", cFileSize},
              {u"sizes.MaxBackupCount", 5},

              {u"days.class", QzDailyRollingFileAppender},
              {u"days.Layout", QzSimpleLayout},
              {u"days.FileName", ADirectory + u"days/tour.log"},
              {u"days.AppendExisting", true}, // the runs of a day share a file
              {u"days.BufferSize", cBuffer},
              {u"days.FlushLevel", cFlushed},
              {u"days.DatePattern", u"yyyy-mm-dd"},

              {u"table.class", QzFileAppender},
              {u"table.Layout", u"TStrictXmlLayout"},
              {u"table.FileName", ADirectory + u"table.log"},
              {u"table.AppendExisting", false},
              {u"table.BufferSize", cBuffer},
              {u"table.FlushLevel", cFlushed},
          } {}

private:
    Variant Find(const UnicodeString& AName, const UnicodeString& AKey, const Variant& ADefault) const {
        const auto Found = FValues.find(AName + u'.' + AKey);
        return Found == FValues.end() ? ADefault : Found->second;
    }

    std::map<UnicodeString, Variant> FValues;
};

const TClassRec TConfigurator::ClassRec = DescribeClass<TConfigurator>(
    u"TConfigurator", {.Unit = u"LogTour", .Interfaces = Interfaces<TConfigurator, IQzLogConfigurator>()});

} // namespace

Ref<IQzLogConfigurator> TourConfiguration(const UnicodeString& ADirectory) {
    RegisteredLayouts().Add(TQzLogBaseClass::Of<TStrictXmlLayout>());
    return TConfigurator::Create(ADirectory);
}
