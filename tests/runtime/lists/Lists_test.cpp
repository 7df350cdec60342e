#include <gtest/gtest.h>

#include "tests/support/AtOnce.h"
#include "tests/support/Lines.h"
#include "tests/support/Message.h"
#include "tests/support/Rows.h"
#include "tests/support/SampleTypes.h"
#include "tests/support/TemporaryDirectory.h"
#include <qz/runtime/base/StringUtils.h>
#include <qz/runtime/lists/Lists.h>

namespace qz {
namespace {

TEST(List, FindsMovesAndSorts) {
    TList<int> List = {3, 1, 2};
    EXPECT_EQ(List.Add(1), 3);
    List.Insert(0, 9);
    List.Insert(5, 8);
    EXPECT_EQ(List, (TList<int>{9, 3, 1, 2, 1, 8}));
    EXPECT_EQ(List.IndexOf(1), 2);
    EXPECT_EQ(List.LastIndexOf(1), 4);
    List.Move(0, 2);
    EXPECT_EQ(List, (TList<int>{3, 1, 9, 2, 1, 8}));
    EXPECT_EQ(List.Remove(1), 1);
    EXPECT_EQ(List.Extract(9), 9);
    EXPECT_EQ(List.Extract(9), 0);
    List.Sort(std::greater<>());
    EXPECT_EQ(List, (TList<int>{8, 3, 2, 1}));
    List.Reverse();
    int Place = -1;
    EXPECT_TRUE(List.BinarySearch(3, Place));
    EXPECT_EQ(Place, 2);
    EXPECT_FALSE(List.BinarySearch(4, Place));
    EXPECT_EQ(Place, 3);
    List.DeleteRange(1, 2);
    EXPECT_EQ(List.ToArray(), (TDynArray<int>{1, 8}));
}

TEST(List, IndexesAreChecked) {
    TList<int> List = {1, 2};
    for (const std::function<void()>& Wrong : std::vector<std::function<void()>>{
             [&] { List[2] = 0; }, [&] { List[-1] = 0; }, [&] { List.Delete(2); }, [&] { List.Insert(3, 0); },
             [&] { List.Move(0, 2); }, [&] { List.Exchange(2, 0); }, [&] { List.DeleteRange(1, 2); },
             [&] { List.DeleteRange(1, 0x7FFFFFFF); }, [&] { TList<int>().First(); },
             [&] { TList<int>().Last(); }, [&] { List.SetCapacity(1); }})
        EXPECT_THROW(Wrong(), EArgumentOutOfRangeException);
    EXPECT_EQ(List, (TList<int>{1, 2}));
}

TEST(List, SortsSafelyByAnyComparison) {
    unsigned Seed = 1;
    const auto Chance = [&Seed](int, int) { return ((Seed = Seed * 1664525 + 1013904223) >> 16 & 1) != 0; };
    TList<int> List, Sorted;
    for (int I = 0; I < 1000; ++I) {
        Sorted.Add(I);
        List.Add(I * 7 % 1000);
    }
    List.Sort(Chance);
    List.Sort([](int, int) { return true; });
    int Left = 500;
    EXPECT_THROW(List.Sort([&](int A, int B) { return --Left > 0 ? A > B : throw EAbort(u"stop"); }), EAbort);
    List.Sort();
    EXPECT_EQ(List, Sorted); // none lost, none twice
    List.Sort([](int A, int B) { return A % 10 < B % 10; });
    for (int I = 0; I < 1000; ++I)
        EXPECT_EQ(List[I], I % 100 * 10 + I / 100);
}

TEST(List, TakesItsOwnItemsAndGivesMemoryBack) {
    TList<UnicodeString> List = {u"a", u"b"};
    for (int I = 0; I < 3; ++I)
        List.AddRange(std::span<const UnicodeString>(&List[0], static_cast<std::size_t>(List.Count())));
    EXPECT_EQ(List.Count(), 16);
    EXPECT_EQ(List[15], "b");
    List.SetCapacity(1000);
    List.SetCapacity(20);
    EXPECT_EQ(List.Capacity(), 20);
}

TEST(ObjectList, EndsWhatItOwnsAndGivesAwayTheRest) {
    TakeTrace();
    {
        TObjectList<TTraced> List;
        for (const char16_t Name : {u'a', u'b', u'c', u'd', u'e'})
            List.Add(TTraced::Create(Name));
        const std::unique_ptr<TTraced> Taken(List.Extract(List[1]));
        List.Delete(0);
        List.SetItem(0, List[0]);
        EXPECT_EQ(TakeTrace(), "freed(a) ");
        List.SetItem(0, nullptr);
        List.Last()->FRefuses = true;
        const std::unique_ptr<TTraced> Stubborn(List.Last());
        EXPECT_THROW(List.Clear(), EInvalidOperation);
        EXPECT_EQ(List.Count(), 2);
        EXPECT_EQ(TakeTrace(), "freed(c) ");
    }
    EXPECT_EQ(TakeTrace(), "freed(e) freed(b) freed(d) "); // the two taken ones, then the list
}

TEST(ObjectList, WithoutOwnershipEndsNothing) {
    TakeTrace();
    TTraced A;
    {
        TObjectList<TTraced> List(false);
        List.Add(&A);
        EXPECT_THROW(List.Add(TTraced::Create(u'x')), EInvalidOperation);
        EXPECT_EQ(List.FindInstanceOf(ClassOf<TTraced>()), 0);
        EXPECT_EQ(List.FindInstanceOf(ClassOf<TObject>()), -1);
        EXPECT_EQ(List.FindInstanceOf(ClassOf<TObject>(), false), 0);
    }
    EXPECT_EQ(TakeTrace(), "freed(x) ");
}

TEST(ThreadList, ManyThreadsAddWithoutDuplicates) {
    constexpr int cItems = 300;
    TThreadList<int> List;
    AtOnce(4, [&List](int) {
        for (int I = 0; I < cItems; ++I) {
            List.Add(I);
            if (I % 3 == 0) {
                const auto Locked = List.Lock();
                Locked->Remove(I);
                List.Add(I);
            }
        }
    });
    TList<int>& Items = List.LockList();
    Items.Sort();
    EXPECT_EQ(Items.Count(), cItems);
    EXPECT_EQ(Items.Last(), cItems - 1);
    List.UnlockList();
}

TEST(InterfaceList, KnowsAnObjectByAnyOfItsInterfaces) {
    TakeTrace();
    TInterfaceList List;
    {
        const Ref<INamed> First = TBoth::Create();
        const Ref<IOther> Second = As<IOther>(First);
        EXPECT_EQ(List.Add(First), 0);
        List.Insert(0, nullptr);
        EXPECT_EQ(List.IndexOf(Second.Get()), 1);
        EXPECT_EQ(List.IndexOf(nullptr), 0);
        EXPECT_EQ(As<IOther>(List.Last()), Second);
    }
    EXPECT_EQ(GTrace, "");
    EXPECT_THROW(List[2], EListError);
    EXPECT_THROW(List.Insert(3, nullptr), EListError);
    List.Exchange(0, 1);
    List.Delete(0);
    EXPECT_EQ(GTrace, "freed(a) ");
    EXPECT_EQ(List.Remove(nullptr), 0);
}

TEST(Dictionary, KeepsOneValueForAKey) {
    TDictionary<UnicodeString, int> Ages;
    Ages.Add(u"Zoe", 31);
    EXPECT_THROW(Ages.Add(u"Zoe", 32), EListError);
    EXPECT_EQ(Ages[u"Zoe"], 31);
    Ages.AddOrSetValue(u"Zoe", 33);
    EXPECT_EQ(Raised([&] { Ages[u"Eve"] = 1; }), "EListError: Item not found");
    int Age = -1;
    EXPECT_FALSE(Ages.TryGetValue(u"Eve", Age));
    EXPECT_EQ(Age, 0);
    EXPECT_TRUE(Ages.ContainsValue(33));
    EXPECT_EQ(Ages.Keys(), TDynArray<UnicodeString>{u"Zoe"});
    EXPECT_EQ(Ages.Values(), TDynArray<int>{33});
    EXPECT_EQ(Ages.ExtractPair(u"Zoe"), std::make_pair(UnicodeString(u"Zoe"), 33));
    EXPECT_EQ(Ages.ExtractPair(u"Zoe"), std::make_pair(UnicodeString(u"Zoe"), 0));
}

using TLines = std::vector<UnicodeString>;

TLines LinesOf(const TStrings& AList) {
    return {AList.begin(), AList.end()};
}

void Fill(TStringList& AList, const TLines& ALines) {
    AList.Clear();
    for (const UnicodeString& Each : ALines)
        AList.Add(Each);
}

TEST(StringList, CommaTextIsWrittenAndRead) {
    const std::pair<TLines, const char16_t*> Cases[] = {
        {{}, u""},
        {{u""}, u"\"\""},
        {{u"", u""}, u","},
        {{u"a", u"", u"b"}, u"a,,b"},
        {{u"one", u"two words", u"th,ree"}, u"one,\"two words\",\"th,ree\""},
        {{u"say \"hi\"", u"\""}, u"\"say \"\"hi\"\"\",\"\"\"\""},
        {{u"\t", u"a\r\nb"}, u"\"\t\",\"a\r\nb\""},
    };
    for (const auto& [Lines, Text] : Cases) {
        TStringList List;
        Fill(List, Lines);
        EXPECT_EQ(List.CommaText(), Text);
        List.SetCommaText(Text);
        EXPECT_EQ(LinesOf(List), Lines) << UnicodeString(Text);
    }
}

TEST(StringList, CommaTextReadsWhatPeopleWrite) {
    for (const auto& Case :
         Rows(u" a , b  => a|b|", u"a b,c => a|b|c|", u"\"a b\"c => a b|c|", u"\"open => open|", u"\" => |",
              u",, => |||", u"a\"b => a\"b|", u"   => ", u"a,  => a|")) {
        TStringList List;
        List.SetCommaText(Case[0]);
        EXPECT_EQ(Lines(List), Case[1]) << Case[0];
    }
}

TEST(StringList, DelimitedTextFollowsItsSettings) {
    const TLines Lines = {u"a b", u"", u"c;d", u"it's", u" "};
    const struct {
        char16_t Delimiter, Quote;
        bool Strict;
        const char16_t* Text;
    } Cases[] = {
        {u';', u'\'', false, u"'a b';;'c;d';'it''s';' '"},
        {u';', u'\'', true, u"a b;;'c;d';'it''s'; "},
        {u' ', u'"', true, u"\"a b\"  c;d it's \" \""},
    };
    for (const auto& Case : Cases) {
        TStringList List;
        List.SetDelimiter(Case.Delimiter);
        List.SetQuoteChar(Case.Quote);
        List.SetStrictDelimiter(Case.Strict);
        Fill(List, Lines);
        EXPECT_EQ(List.DelimitedText(), Case.Text);
        List.SetDelimitedText(Case.Text);
        EXPECT_EQ(LinesOf(List), Lines) << UnicodeString(Case.Text);
    }
}

TEST(StringList, TextReadsEveryLineEnd) {
    TStringList List;
    List.SetText(u"a\rb\nc\r\nd\n\re\r\n\r\n");
    EXPECT_EQ(LinesOf(List), (TLines{u"a", u"b", u"c", u"d", u"", u"e", u""}));
    EXPECT_EQ(List.Text(), "a\r\nb\r\nc\r\nd\r\n\r\ne\r\n\r\n");
    List.SetText(u"a\n\nb");
    List.SetLineBreak(u"|");
    EXPECT_EQ(List.Text(), "a||b|");
    List.SetTrailingLineBreak(false);
    EXPECT_EQ(List.Text(), "a||b");
    List.SetText(u"c\nd|e|");
    EXPECT_EQ(LinesOf(List), (TLines{u"c\nd", u"e"})) << "a break of one's own is the only one";
}

TEST(StringList, SortedKeepsItsOrderAndDuplicatesRule) {
    TStringList List;
    Fill(List, {u"pear", u"Apple", u"fig"});
    List.SetSorted(true);
    EXPECT_EQ(LinesOf(List), (TLines{u"Apple", u"fig", u"pear"}));
    EXPECT_EQ(List.Add(u"FIG"), 1);
    EXPECT_EQ(List.Count(), 3);
    List.SetDuplicates(dupError);
    EXPECT_EQ(Raised([&] { List.Add(u"apple"); }), "EStringListError: String list does not allow duplicates");
    List.SetDuplicates(dupAccept);
    List.Add(u"FIG");
    int Place = -1;
    EXPECT_TRUE(List.Find(u"Fig", Place));
    EXPECT_EQ(Place, 1);
    EXPECT_FALSE(List.Find(u"zebra", Place));
    EXPECT_EQ(Place, 4);
    EXPECT_EQ(Raised([&] { List.Insert(0, u"x"); }),
              "EStringListError: Operation not allowed on sorted list");
    EXPECT_THROW(List.SetString(0, u"x"), EStringListError);
    EXPECT_THROW(List.Exchange(0, 1), EStringListError);
    EXPECT_THROW(List.Move(0, 1), EStringListError);
    List.SetUseLocale(false);
    List.SetCaseSensitive(true);
    EXPECT_EQ(LinesOf(List), (TLines{u"Apple", u"FIG", u"fig", u"pear"}));
}

TEST(StringList, IndexesAreChecked) {
    TStringList List;
    List.Add(u"a");
    EXPECT_EQ(Raised([&] { static_cast<void>(List[1]); }), "EStringListError: List index out of bounds (1)");
    EXPECT_THROW(List.Delete(-1), EStringListError);
    EXPECT_THROW(List.Insert(2, u"x"), EStringListError);
    EXPECT_THROW(List.Exchange(0, 1), EStringListError);
}

TEST(StringList, NamesAndValues) {
    TStringList List;
    Fill(List, {u"plain", u"Color=red", u"empty=", u"two=a=b"});
    EXPECT_EQ(List.Values(u"color"), "red");
    EXPECT_EQ(List.Names(2), "empty");
    EXPECT_EQ(List.IndexOfName(u"plain"), -1);
    List.SetValue(u"color", u"blue");
    EXPECT_EQ(List[1], "color=blue");
    List.SetValue(u"color", u"");
    List.SetValue(u"absent", u"");
    List.SetValue(u"new", u"1");
    List.SetValueFromIndex(3, u"2");
    EXPECT_EQ(LinesOf(List), (TLines{u"plain", u"empty=", u"two=a=b", u"new=2"}));
    List.SetNameValueSeparator(u':');
    EXPECT_EQ(List.Values(u"new"), "");
}

TEST(StringList, MovesAndSorts) {
    TStringList List;
    Fill(List, {u"b", u"c", u"a"});
    List.Sort();
    EXPECT_EQ(Lines(List), u"a|b|c|");
    List.CustomSort([](const TStringList& Each, int A, int B) { return CompareStr(Each[B], Each[A]); });
    EXPECT_EQ(Lines(List), u"c|b|a|");
}

TEST(StringList, TellsChangesOnceWithinAnUpdate) {
    TStringList List;
    UnicodeString Trace;
    List.SetOnChanging([&](TObject* Sender) { Trace += Sender == &List ? u"-" : u"?"; });
    List.SetOnChange([&](TObject*) { Trace += u"+"; });
    List.Add(u"a");
    List.Delete(0);
    List.SetCommaText(u"a,b,c");
    EXPECT_EQ(std::exchange(Trace, {}), "-+-+-+");
    List.BeginUpdate();
    List.Clear();
    List.SetText(u"x");
    List.EndUpdate();
    EXPECT_EQ(Trace, "-+");
    List.SetDuplicates(dupError);
    List.SetSorted(true);
    EXPECT_THROW(List.SetCommaText(u"a,a"), EStringListError);
    Trace.Clear();
    List.Add(u"b");
    EXPECT_EQ(Trace, "-+"); // the update that failed has ended
}

TEST(StringList, OwnedObjectsEndWithTheirLines) {
    TakeTrace();
    const auto Stubborn = TTraced::Create(u's', true);
    {
        TStringList List(true);
        for (const char16_t Name : {u'a', u'b', u'c', u'd'})
            List.AddObject(Name, TTraced::Create(Name).release());
        EXPECT_EQ(List.IndexOfObject(List.Objects(2)), 2);
        List.Move(0, 3);
        List.Exchange(0, 1);
        EXPECT_EQ(GTrace, "");
        List.SetObject(0, nullptr); // that of c
        List.Delete(2);             // d
        EXPECT_EQ(TakeTrace(), "freed(c) freed(d) ");
        List.InsertObject(1, u"s", Stubborn.get());
        EXPECT_THROW(List.Clear(), EInvalidOperation);
        EXPECT_EQ(List.Count(), 0);
        EXPECT_EQ(TakeTrace(), "freed(a) freed(b) ");
        List.AddObject(u"z", TTraced::Create(u'z').release());
    }
    EXPECT_EQ(TakeTrace(), "freed(z) ");
}

TEST(StringList, AssignTakesAllOfTheSource) {
    TStringList From, To;
    From.SetDuplicates(dupAccept);
    From.SetCaseSensitive(true);
    From.SetUseLocale(false);
    From.SetSorted(true);
    for (const char* Line : {"b", "B", "a", "b"})
        From.Add(Line);
    From.SetDelimiter(u';');
    TTraced Tag;
    From.SetObject(1, &Tag);
    EXPECT_FALSE(To.Equals(From));
    To.SetSorted(true);
    To.Assign(&From);
    To.Assign(&To);
    EXPECT_TRUE(To.Equals(From));
    EXPECT_EQ(To.Objects(1), &Tag);
    To.Add(u"C");
    EXPECT_EQ(To.DelimitedText(), "B;C;a;b;b");
    EXPECT_THROW(To.Assign(nullptr), EConvertError);
}

TEST(StringList, FilesAreUtf8OrInTheirEncoding) {
    const platform::TTemporaryDirectory Directory;
    const std::u16string Path = Directory / u"list.txt";
    TStringList List, Read;
    Fill(List, {u"Zo\u00EB", u"", u"\U0001F600"});
    List.SaveToFile(Path);
    const auto Bytes = platform::ReadWholeFile(Path);
    EXPECT_EQ(std::string_view(reinterpret_cast<const char*>(Bytes->data()), Bytes->size()),
              "Zo\xC3\xAB\r\n\r\n\xF0\x9F\x98\x80\r\n");
    Read.LoadFromFile(Path);
    EXPECT_TRUE(Read.Equals(List));
    for (const std::uint16_t Page : std::initializer_list<std::uint16_t>{1200, 1201, 12000, 65001}) {
        List.SaveToFile(Path, TEncoding(Page));
        Read.Clear();
        Read.LoadFromFile(Path, TEncoding(1252)); // by the mark
        EXPECT_TRUE(Read.Equals(List)) << Page;
    }
    EXPECT_THROW(Read.LoadFromFile(Directory / u"none"), EFOpenError);
    EXPECT_EQ(Read.Count(), 3);
    EXPECT_THROW(Read.SaveToFile(Directory / u"none/list.txt"), EFCreateError);
}

} // namespace
} // namespace qz
