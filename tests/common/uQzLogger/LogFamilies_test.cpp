#include <gtest/gtest.h>

#include "tests/common/support/MemoryAppender.h"
#include "tests/support/Message.h"
#include <qz/common/uQzDateTimeUtils.h>
#include <qz/common/uQzLogger.h>
#include <qz/runtime/text/Format.h>
#include <qz/runtime/values/VariantArray.h>

namespace qz {
namespace {

// An object with a property of each kind, some of which are not shown.
class TSample : public TPersistent {
    QZ_CLASS(TSample, TPersistent)

public:
    std::int32_t GetBad() const { throw EConvertError(u"no value"); }
    void SetBad(std::int32_t) {}
    std::int32_t GetFixed() const { return 1; }

    std::int32_t FNumber = 17;
    double FRatio = 0.5;
    TQzDatePeriod FPeriod = dpDay;
    UnicodeString FText = u"16 bits are not shown";
    AnsiString FNarrow{AnsiString("eight bits")};
    std::int64_t FLong = 1;
    Variant FAny = VarArrayOf({1, u"two"});
    TSample* FInner = nullptr;
};

constexpr TPropInfo cSampleProps[] = {
    Property<&TSample::FNumber, &TSample::FNumber>(u"Number"),
    Property<&TSample::GetBad, &TSample::SetBad>(u"Bad"),
    ReadOnly<&TSample::GetFixed>(u"Fixed"),
    Property<&TSample::FRatio, &TSample::FRatio>(u"Ratio"),
    Property<&TSample::FPeriod, &TSample::FPeriod>(u"Period"),
    Property<&TSample::FText, &TSample::FText>(u"Text"),
    Property<&TSample::FNarrow, &TSample::FNarrow>(u"Narrow"),
    Property<&TSample::FLong, &TSample::FLong>(u"Long"),
    Property<&TSample::FAny, &TSample::FAny>(u"Any"),
    Property<&TSample::FInner, &TSample::FInner>(u"Inner"),
};

const TClassRec TSample::ClassRec =
    DescribeClass<TSample>(u"TSample", {.Unit = u"Tests", .Properties = cSampleProps});

TEST(LogFamilies, EachMakesItsMessage) {
    const TLogTree Tree;
    TMemoryAppender& Out = AddMemory(Logger());
    TQzLogger& Log = Logger();
    Log.SetLevel(llAll);
    const TSample Object;
    const EConvertError Failure(u"went wrong");
    const Ref<IQzLogData> Data = TQzLogData::Create(llWarn, u"kept");
    const UnicodeString Address = Format(u"%p", {static_cast<const void*>(&Object)});
    const UnicodeString Shown =
        u"=(EConvertError @ " + Format(u"%p", {static_cast<const void*>(&Failure)}) + u")|";
    const std::pair<std::function<void()>, UnicodeString> Cases[] = {
        {[&] { Log.Trace(&Object, "%d", {1}); }, u"Trace TSample($" + Address + u").1|"},
        {[&] { Log.Debug("m", &Object); }, u"Debug m=(TSample @ " + Address + u")|"},
        {[&] { Log.Fatal("%d", {2}); }, u"Fatal 2|"},
        {[&] { Log.Error("m", Failure); }, u"Error m\r\nwent wrong|"},
        {[&] { Log.Fatal("m", Failure); }, u"Fatal m" + Shown},
        {[&] { Log.Count("hits", -3); }, u"Debug #counter::hits#=-3|"},
        {[&] { Log.ClearLog(); }, u""},
        {[&] { Log.EnterMethod("%d", {3}, llInfo); }, u"Info 3 {|"},
        {[&] { Log.EnterMethod(&Object, "Run %d", {4}, llInfo); }, u"Info TSample.Run 4 {|"},
        {[&] { Log.EnterMethod(static_cast<TObject*>(nullptr), "x"); }, u"Trace nil.x {|"},
        {[&] { Log.Log(llFatal, "m", true, liIndentIncrease); }, u"Fatal m=True {|"},
        {[&] { Log.LogValue(llFatal, "m", dpDay); }, u"Fatal m=dpDay|"},
        {[&] { Log.Log(Data); }, u"Warn kept|"},
        {[&] { const TQzMethodScope Scope(&Log, &Object, "Run%"); },
         u"Trace TSample.Run% {|root>root Trace TSample.Run% }|"},
    };
    for (const auto& [Call, Expected] : Cases) {
        Call();
        EXPECT_EQ(Out.Take(), Expected.IsEmpty() ? u"" : u"root>root " + Expected);
    }
    EXPECT_THROW(Log.Debug("%d", {u"x"}), EConvertError);
    EXPECT_THROW(Log.Log(static_cast<IQzLogData*>(nullptr)), EAssertionFailed);
}

TEST(DataRec, DumpsPublishedProperties) {
    TSample Outer;
    TSample Inner;
    Outer.FInner = &Inner;
    Inner.FInner = &Outer; // a cycle ends at its first object
    Inner.FPeriod = static_cast<TQzDatePeriod>(77);
    const auto Lines = [](const UnicodeString& AIndent, const char16_t* APeriod) {
        UnicodeString Result;
        for (const UnicodeString Line :
             {u"Number = 17",
              u"Exception EConvertError(no value) was raised while trying to read property: Bad",
              u"Ratio = 0.5", APeriod, u"Narrow = eight bits", u"Any = 1\r\ntwo\r\n"})
            Result += AIndent + Line + u"\r\n";
        return Result;
    };
    const TValue Value(static_cast<TObject*>(&Outer));
    EXPECT_EQ(QzDataRecToString(&Value),
              u"object : TSample\r\n" + Lines(u"  ", u"Period = dpDay") + u"  object : TSample\r\n" +
                  Lines(u"    ", u"Period = 77"));
    const TValue Number(5);
    EXPECT_EQ(QzDataRecToString(&Number), u"5");
}

} // namespace

} // namespace qz
