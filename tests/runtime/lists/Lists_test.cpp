#include <gtest/gtest.h>

#include "tests/support/AtOnce.h"
#include "tests/support/Message.h"
#include "tests/support/SampleTypes.h"
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

class TFullList : public TObjectList<TTraced> {
public:
    using TObjectList::TObjectList;
    bool Full = false;

protected:
    void Notify(TTraced* AItem, TCollectionNotification AAction) override {
        if (AAction == cnAdded && Full)
            throw EInvalidOperation(u"full");
        TObjectList::Notify(AItem, AAction);
    }
};

TEST(ObjectList, StaysAsItWasWhenAnItemIsRefused) {
    TTraced A, B;
    TFullList List(false);
    List.Add(&A);
    List.Full = true;
    EXPECT_THROW(List.Add(&B), EInvalidOperation);
    EXPECT_THROW(List.SetItem(0, &B), EInvalidOperation);
    EXPECT_EQ(List.Count(), 1);
    EXPECT_EQ(List[0], &A);
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

TEST(ThreadList, TreatsDuplicatesAsTold) {
    TThreadList<int> Accepting(dupAccept);
    Accepting.Add(1);
    Accepting.Add(1);
    EXPECT_EQ(Accepting.Lock()->Count(), 2);
    TThreadList<int> Refusing(dupError);
    Refusing.Add(1);
    EXPECT_THROW(Refusing.Add(1), EListError);
    EXPECT_EQ(Refusing.Lock()->Count(), 1);
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
    EXPECT_EQ(List.Count(), 0);
    EXPECT_THROW(List.First(), EListError);
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

} // namespace
} // namespace qz
