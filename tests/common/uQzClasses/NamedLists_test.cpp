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
    File.WriteString(u"");
    File.WriteString(AnsiString());
    EXPECT_EQ(File.Size(), 0);
    File.WriteString(AnsiString(std::string_view("a\0\xE9", 3)));
    File.WriteString(u"\xD800z");
    std::string Bytes(7, ' ');
    File.SetPosition(0);
    File.ReadBuffer(Bytes.data(), 7);
    EXPECT_EQ(Bytes, std::string_view("a\0\xE9\0\xD8z\0", 7));
    EXPECT_EQ(File.Size(), 7);
}

TEST(QzStringList, TokenizeReplacesTheLinesByThePieces) {
    for (const auto& Case :
         Rows(u"a,,b => a|b|", u", => ", u" => ", u",b , => b |", u"\"a,b\" => \"a|b\"|")) {
        TQzStringList List;
        List.Add(u"old");
        List.Tokenize(Case[0], u',');
        EXPECT_EQ(Lines(List), Case[1]) << Case[0];
    }
    TQzStringList List;
    List.Tokenize(u"", u'#');
    EXPECT_EQ(List.Delimiter(), u'#');
}

TEST(QzStringList, TokenizeTellsOfOneChangeAlsoWhenALineIsRefused) {
    TQzStringList List;
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

using TKeyDesc = TOwned<TQzKeyDescStringList>;

TEST(QzKeyDescStringList, FindsEitherSideByTheOther) {
    const TKeyDesc List(TQzKeyDescStringList::Create(nullptr));
    List->AddItem(u"x");
    List->AddItem(u"y");
    List->AddItem(u"Key", u"first");
    List->AddItem(u"KEY", u"second");
    List->AddItem(-7, u"minus");
    List->AddItem(u"", u"nothing");
    const std::pair<Variant, const char16_t*> cDescriptions[] = {
        {1, u"y"},         {std::int16_t{1}, u"y"}, {u"1", u"y"},      {u"key", u"first"}, {-7, u"minus"},
        {u"", u"nothing"}, {Variant(), u"nothing"}, {u"unknown", u""}, {1.0, u"y"},
    };
    for (const auto& [Key, Description] : cDescriptions)
        EXPECT_EQ(List->GetDescription(Key), Description) << VarToStr(Key);
    EXPECT_EQ(List->GetStrKeyValue(u"SECOND"), u"KEY");
    EXPECT_EQ(List->GetStrKeyValue(u"z"), u"");
    EXPECT_EQ(List->GetIntKeyValue(u"y"), 1);
    EXPECT_EQ(List->GetIntKeyValue(u"minus"), -7);
    EXPECT_EQ(List->GetIntKeyValue(u"z"), -1);
    EXPECT_EQ(List->GetIntKeyValue(u"first"), -1);
    TStringList Longer;
    Longer.Add(u"a");
    List->SetDescriptions(&Longer);
    EXPECT_EQ(List->GetDescription(u"KEY"), u"") << "no description stands beside the key";
}

TEST(QzKeyDescStringList, TakesPairsOrLinesOrRefuses) {
    const TKeyDesc Source(TQzKeyDescStringList::Create(nullptr));
    const TKeyDesc Target(TQzKeyDescStringList::Create(nullptr));
    Source->AddItem(u"k", u"d");
    Target->AddItem(u"old");
    Target->Assign(Source.get());
    EXPECT_EQ(Lines(*Target->KeyValues()) + Lines(*Target->Descriptions()), u"k|d|");
    TStringList Names;
    Names.SetSorted(true);
    Names.SetCommaText(u"b,a");
    Target->Assign(&Names);
    Target->AddItem(u"0th");
    EXPECT_EQ(Lines(*Target->KeyValues()) + Lines(*Target->Descriptions()), u"0|1|2|a|b|0th|");
    Target->AddItems(*Target->Descriptions());
    EXPECT_EQ(Target->GetStrKeyValue(u"0th") + Target->KeyValues()->Strings(5), u"25");
    Target->Assign(Target->KeyValues());
    EXPECT_EQ(Lines(*Target->Descriptions()), u"0|1|2|3|4|5|") << "a list of its own";
    EXPECT_THROW(Target->Assign(nullptr), EConvertError);
    Target->Clear();
    EXPECT_EQ(Target->KeyValues()->Count() + Target->Descriptions()->Count(), 0);
}

class TCounted : public TInterfacedObject {
    QZ_CLASS(TCounted, TInterfacedObject)

protected:
    ~TCounted() override { GTrace += u"counted "; }
};
class TDecides : public TQzObject {
    QZ_CLASS(TDecides, TQzObject)

protected:
    ~TDecides() override { GTrace += u"decides "; }
};
constinit const TClassRec TCounted::ClassRec = DescribeClass<TCounted>(u"TCounted", {.Unit = u"Test"});
constinit const TClassRec TDecides::ClassRec = DescribeClass<TDecides>(u"TDecides", {.Unit = u"Test"});

TEST(QzObjectList, HoldsWhatCountsItsReferencesWhoeverOwnsIt) {
    for (const bool Owns : {true, false}) {
        TakeTrace();
        TQzObjectList List(Owns);
        TCounted* Counted = List.Add(TCounted::Create());
        TDecides* Decides = TDecides::Create();
        Decides->SetAutoDestroy(true);
        EXPECT_EQ(List.Add(Decides), Decides);
        EXPECT_EQ(Counted->RefCount() + Decides->RefCount(), 2);
        Ref<IInterface> Kept(Counted);
        List.Remove(Counted);
        EXPECT_EQ(Counted->RefCount(), 1) << "somebody else refers to it";
        List.Extract(Decides);
        EXPECT_EQ(TakeTrace(), "decides ");
        List.Add(Counted);
        List.Add(Counted);
        Kept.Clear();
        EXPECT_EQ(Counted->RefCount(), 2);
        List.Delete(1);
        EXPECT_EQ(TakeTrace(), "");
        List.Clear();
        EXPECT_EQ(TakeTrace(), "counted ");
        TQzObjectList(Owns).Add(TCounted::Create());
        EXPECT_EQ(TakeTrace(), "counted ");
    }
}

TEST(QzObjectList, DropsOnlyWhatItTookWhateverBecomesOfThePolicy) {
    TakeTrace();
    TQzObjectList List;
    TDecides* Late = List.Add(TDecides::Create());
    EXPECT_EQ(Late->RefCount(), 0) << "nobody has decided yet";
    {
        const Ref<IInterface> Kept(Late);
        EXPECT_THROW(List.Remove(Late), Exception);
        EXPECT_EQ(Late->RefCount(), 1);
    }
    EXPECT_EQ(TakeTrace(), "decides ");
    TDecides* Owned = TDecides::Create();
    Owned->SetAutoDestroy(true);
    List.Add(Owned);
    Owned->SetAutoDestroy(false);
    List.Clear();
    EXPECT_EQ(TakeTrace(), "decides ") << "its owner, the list, ends it";
}

TEST(QzMemoList, FindsMemosByCodeInAnyCaseAndRefusesASecondOne) {
    const TOwned<TQzMemoList> List(TQzMemoList::Create(nullptr));
    TQzMemoListItems& Items = *List->Items();
    TStringList Text;
    Text.SetCommaText(u"one,two");
    TQzMemoListItem* Item = Items.Add(u"Abc", &Text);
    Items.Add(u"other");
    EXPECT_EQ(Lines(*List->MemoByCode(u"aBC")), u"one|two|");
    EXPECT_NE(Item->Memo(), &Text);
    EXPECT_EQ(Items.Owner(), List.get());
    EXPECT_EQ(Raised([&] { Items.Add(u"ABC"); }), "EListError: There already is a memo with code ABC!");
    EXPECT_EQ(Raised([&] { List->MemoByCode(u"none"); }),
              "Exception: There is no MemoItem with the code none!");
    EXPECT_EQ(Items.Count(), 2);
}

TEST(QzMemoList, RemovesByCodeItemAndIndexAndIgnoresStrangers) {
    TQzMemoListItems Items(nullptr), Others(nullptr);
    for (const char16_t* Code : {u"a", u"b", u"c", u"d"})
        Items.Add(Code);
    const TQzMemoListItem* Stranger = Others.Add(u"a");
    EXPECT_EQ(Items.IndexOf(Stranger), -1);
    Items.Remove(Stranger);
    Items.Remove(u"unknown");
    EXPECT_THROW(Items.Remove(4), EListError);
    EXPECT_EQ(Items.Count(), 4);
    Items.Remove(u"C");
    Items.Remove(Items.Find(u"a"));
    Items.Remove(1);
    ASSERT_EQ(Items.Count(), 1);
    EXPECT_EQ(Items.Code(0), u"b");
    EXPECT_EQ(Items.Find(u"a"), nullptr);
}

TEST(QzMemoList, CopiesItemsIntoListsAndRefusesOtherTargets) {
    TQzMemoListItems Source(nullptr);
    TStringList Text;
    Text.Add(u"line");
    Source.Add(u"a", &Text);
    Source.Add(u"b");
    const TOwned<TQzMemoList> List(TQzMemoList::Create(nullptr));
    List->Items()->Add(u"old");
    List->SetItems(&Source);
    Source.Item(0)->Memo()->Add(u"later");
    ASSERT_EQ(List->Items()->Count(), 2);
    EXPECT_EQ(Lines(*List->MemoByCode(u"A")), u"line|");
    List->Items()->SetItem(1, Source.Item(0));
    EXPECT_EQ(List->Items()->Code(1), u"a");
    EXPECT_EQ(Lines(*List->Items()->Item(1)->Memo()), u"line|later|");
    EXPECT_THROW(Text.Assign(Source.Item(0)), EConvertError);
    EXPECT_THROW(Text.Assign(&Source), EConvertError);
}

TEST(NamedLists, PublishTheirListsForWriting) {
    const TOwned<TQzMemoList> List(TQzMemoList::Create(nullptr));
    TQzMemoListItem* Item = List->Items()->Add(u"a");
    TStringList Text;
    Text.Add(u"new");
    TObject* Value = &Text;
    const TPropInfo* Memo = GetPropInfo(TypeInfo<TQzMemoListItem>(), u"Memo");
    ASSERT_NE(Memo, nullptr);
    Memo->Set(*Item, &Value);
    EXPECT_EQ(Lines(*Item->Memo()), u"new|");
    for (const char16_t* Name : {u"KeyValues", u"Descriptions"})
        EXPECT_NE(GetPropInfo(TypeInfo<TQzKeyDescStringList>(), Name), nullptr);
}

} // namespace
} // namespace qz
