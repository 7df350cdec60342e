#include <gtest/gtest.h>

#include "tests/support/Lines.h"
#include "tests/support/Message.h"
#include "tests/support/Rows.h"
#include "tests/support/TemporaryDirectory.h"
#include "tests/support/Trace.h"
#include <qz/common/uQzClasses.h>
#include <qz/runtime/objects/Describe.h>

namespace qz {
namespace {

TEST(QzFileStream, WritesBytesAndUnitsAsTheyStand) {
    const platform::TTemporaryDirectory Directory;
    TQzFileStream File(Directory / u"file", fmCreate);
    File.WriteString(AnsiString(std::string_view("a\0\xE9", 3)));
    File.WriteString(u"\xD800z");
    std::string Bytes(7, ' ');
    File.SetPosition(0);
    File.ReadBuffer(Bytes.data(), 7);
    EXPECT_EQ(Bytes, std::string_view("a\0\xE9\0\xD8z\0", 7));
    EXPECT_EQ(File.Size(), 7);
}

TEST(QzStringList, TokenizeReplacesTheLinesInOneChange) {
    TQzStringList List;
    for (const auto& Case : Rows(u"a,,b => a|b|", u" => ", u",b , => b |", u"\"a,b\" => \"a|b\"|")) {
        List.Tokenize(Case[0], u',');
        EXPECT_EQ(Lines(List), Case[1]) << Case[0];
    }
    int Changes = 0;
    List.SetDuplicates(dupError);
    List.SetSorted(true);
    List.SetOnChange([&](TObject*) { ++Changes; });
    List.Tokenize(u"b a c", u' ');
    EXPECT_EQ(Lines(List), u"a|b|c|");
    EXPECT_EQ(Changes, 1);
    EXPECT_THROW(List.Tokenize(u"b a b", u' '), EStringListError);
    EXPECT_EQ(Changes, 2);
    List.Tokenize(List[1], u'x');
    EXPECT_EQ(Lines(List), u"b|");
}

class QzKeyDescStringList : public testing::Test {
protected:
    UnicodeString Both() const { return Lines(*List->KeyValues()) + u"/" + Lines(*List->Descriptions()); }
    const TOwned<TQzKeyDescStringList> List{TQzKeyDescStringList::Create(nullptr)};
};

TEST_F(QzKeyDescStringList, FindsEitherSideByTheOther) {
    List->AddItem(u"x");
    List->AddItem(u"y");
    List->AddItem(u"Key", u"first");
    List->AddItem(u"KEY", u"second");
    List->AddItem(-7, u"minus");
    List->AddItem(u"", u"nothing");
    const std::pair<Variant, const char16_t*> Descriptions[] = {{1, u"y"},         {u"key", u"first"},
                                                                {-7, u"minus"},    {Variant(), u"nothing"},
                                                                {u"unknown", u""}, {1.0, u"y"}};
    for (const auto& [Key, Description] : Descriptions)
        EXPECT_EQ(List->GetDescription(Key), Description) << VarToStr(Key);
    EXPECT_EQ(List->GetStrKeyValue(u"SECOND"), u"KEY");
    EXPECT_EQ(List->GetIntKeyValue(u"minus"), -7);
    for (const char16_t* None : {u"z", u"first"})
        EXPECT_EQ(List->GetIntKeyValue(None), -1);
}

TEST_F(QzKeyDescStringList, TakesPairsOrLinesOrRefuses) {
    TStringList Names;
    Names.SetSorted(true);
    Names.SetCommaText(u"b,a");
    List->AddItem(u"old");
    List->Assign(&Names);
    List->AddItems(Names);
    EXPECT_EQ(Both(), u"0|1|2|3|/a|b|a|b|");
    const TOwned<TQzKeyDescStringList> Target(TQzKeyDescStringList::Create(nullptr));
    Target->Assign(List.get());
    List->Assign(List->KeyValues());
    EXPECT_EQ(Both(), u"0|1|2|3|/0|1|2|3|") << "a list of its own";
    EXPECT_EQ(Lines(*Target->Descriptions()), u"a|b|a|b|");
    EXPECT_THROW(List->Assign(nullptr), EConvertError);
}

class TCounted : public TQzObject {
    QZ_CLASS(TCounted, TQzObject)

protected:
    ~TCounted() override { GTrace += u"freed "; }
};
constinit const TClassRec TCounted::ClassRec = DescribeClass<TCounted>(u"TCounted", {.Unit = u"Test"});

TEST(QzObjectList, HoldsWhatCountsItsReferencesWhetherItOwnsOrNot) {
    for (const bool Owns : {true, false}) {
        TakeTrace();
        TQzObjectList List(Owns);
        TCounted* Counted = TCounted::Create();
        Ref<IInterface> Kept(Counted);
        List.Add(Counted);
        List.Remove(Counted);
        EXPECT_EQ(Counted->RefCount(), 1) << "another reference is left";
        List.Add(List.Add(Counted));
        Kept.Clear();
        List.Delete(1);
        EXPECT_EQ(Counted->RefCount(), 1);
        List.Extract(Counted);
        EXPECT_EQ(TakeTrace(), "freed ");
    }
}

TEST(QzObjectList, DropsOnlyWhatItTookWhateverBecomesOfThePolicy) {
    TakeTrace();
    TQzObjectList List;
    TCounted* Late = List.Add(TCounted::Create());
    {
        const Ref<IInterface> Kept(Late);
        EXPECT_THROW(List.Remove(Late), Exception);
    }
    EXPECT_EQ(TakeTrace(), "freed ");
    TCounted* Owned = TCounted::Create();
    Owned->SetAutoDestroy(true);
    List.Add(Owned);
    Owned->SetAutoDestroy(false);
    List.Clear();
    EXPECT_EQ(TakeTrace(), "freed ") << "its owner, the list, ends it";
}

TEST(QzMemoList, FindsAndRemovesMemosByCodeInAnyCase) {
    const TOwned<TQzMemoList> List(TQzMemoList::Create(nullptr));
    TQzMemoListItems &Items = *List->Items(), Others(nullptr);
    TStringList Text;
    Text.SetCommaText(u"one,two");
    Items.Add(u"Abc", &Text);
    for (const char16_t* Code : {u"b", u"c", u"d"})
        Items.Add(Code);
    EXPECT_EQ(Lines(*List->MemoByCode(u"aBC")), u"one|two|");
    Others.Assign(&Items);
    Items.Find(u"abc")->Memo()->Clear();
    EXPECT_EQ(Lines(*Others.Find(u"abc")->Memo()), u"one|two|");
    EXPECT_THROW(Text.Assign(&Items), EConvertError);
    EXPECT_EQ(Raised([&] { Items.Add(u"ABC"); }), "EListError: There already is a memo with code ABC!");
    Items.Remove(Others.Find(u"b"));
    Items.Remove(u"unknown");
    Items.Remove(u"C");
    Items.Remove(Items.Find(u"abc"));
    Items.Remove(1);
    ASSERT_EQ(Items.Count(), 1);
    EXPECT_EQ(Items.Code(0), u"b");
}

} // namespace
} // namespace qz
