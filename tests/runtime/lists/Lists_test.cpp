#include <gtest/gtest.h>

#include <thread>

#include "tests/support/Message.h"
#include "tests/support/Trace.h"
#include <qz/runtime/lists/Lists.h>
#include <qz/runtime/objects/Describe.h>
#include <qz/runtime/objects/Exceptions.h>
#include <qz/runtime/objects/InterfacedObject.h>

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
    EXPECT_EQ(List.LastIndexOf(7), -1);
    List.Move(0, 2);
    EXPECT_EQ(List, (TList<int>{3, 1, 9, 2, 1, 8}));
    List.Move(5, 1);
    EXPECT_EQ(List, (TList<int>{3, 8, 1, 9, 2, 1}));
    EXPECT_EQ(List.Remove(1), 2);
    EXPECT_EQ(List.Remove(7), -1);
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
             [&] { List.Items(2); }, [&] { List[-1] = 0; }, [&] { List.Delete(2); },
             [&] { List.Insert(3, 0); }, [&] { List.Move(0, 2); }, [&] { List.Exchange(2, 0); },
             [&] { List.DeleteRange(1, 2); }, [&] { List.DeleteRange(1, 0x7FFFFFFF); },
             [&] { TList<int>().First(); }, [&] { TList<int>().Last(); }, [&] { List.SetCapacity(1); }})
        EXPECT_THROW(Wrong(), EArgumentOutOfRangeException);
    EXPECT_EQ(List, (TList<int>{1, 2}));
}

TEST(List, SortsSafelyByAnyComparison) {
    unsigned Seed = 1;
    const auto Chance = [&Seed](int, int) { return ((Seed = Seed * 1664525 + 1013904223) >> 16 & 1) != 0; };
    TList<int> List, Sorted;
    for (int I = 0; I < 1000; ++I)
        Sorted.Add(I);
    for (int I = 0; I < 1000; ++I)
        List.Add(I * 7 % 1000);
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

class TTraced : public TObject {
    QZ_CLASS(TTraced, TObject)
public:
    explicit TTraced(char16_t AName) : FName(AName) {}
    ~TTraced() override { GTrace += FName; }
    void BeforeDestruction() override {
        if (std::exchange(FRefuses, false))
            throw EInvalidOperation(u"not now");
    }
    bool FRefuses = false;

private:
    char16_t FName;
};
constinit const TClassRec TTraced::ClassRec = DescribeClass<TTraced>(u"TTraced", {.Unit = u"Test"});

TEST(ObjectList, EndsWhatItOwnsAndGivesAwayTheRest) {
    GTrace.Clear();
    {
        TObjectList<TTraced> List;
        for (const char16_t Name : {u'a', u'b', u'c', u'd', u'e'})
            List.Add(TTraced::Create(Name));
        const std::unique_ptr<TTraced> Taken(List.Extract(List[1]));
        List.Delete(0);
        EXPECT_EQ(GTrace, "a");
        List.SetItem(0, List[0]);
        List.SetItem(0, nullptr);
        EXPECT_EQ(GTrace, "ac");
        List.First();
        List.Last()->FRefuses = true;
        const std::unique_ptr<TTraced> Stubborn(List.Last());
        EXPECT_THROW(List.Clear(), EInvalidOperation);
        EXPECT_EQ(List.Count(), 2);
        EXPECT_EQ(GTrace, "ac");
    }
    EXPECT_EQ(GTrace, "acebd"); // the two taken ones, then the list
}

TEST(ObjectList, WithoutOwnershipEndsNothing) {
    GTrace.Clear();
    const auto A = TTraced::Create(u'a');
    {
        TObjectList<TTraced> List(false);
        List.Add(A.get());
        List.Add(A.get());
        EXPECT_THROW(List.Add(TTraced::Create(u'x')), EInvalidOperation);
        EXPECT_EQ(List.Remove(A.get()), 0);
        EXPECT_EQ(List.FindInstanceOf(ClassOf<TTraced>()), 0);
        EXPECT_EQ(List.FindInstanceOf(ClassOf<TObject>()), -1);
        EXPECT_EQ(List.FindInstanceOf(ClassOf<TObject>(), false), 0);
    }
    EXPECT_EQ(GTrace, "x");
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
    TTraced A(u'a'), B(u'b');
    TFullList List(false);
    List.Add(&A);
    List.Add(&B);
    List.Full = true;
    EXPECT_THROW(List.Add(&A), EInvalidOperation);
    EXPECT_THROW(List.SetItem(1, &A), EInvalidOperation);
    ASSERT_EQ(List.Count(), 2);
    EXPECT_EQ(List[0], &A);
    EXPECT_EQ(List[1], &B);
}

TEST(ThreadList, ManyThreadsAddWithoutDuplicates) {
    constexpr int cThreads = 4;
    constexpr int cItems = 300;
    TThreadList<int> List;
    std::vector<std::thread> Threads;
    for (int T = 0; T < cThreads; ++T)
        Threads.emplace_back([&List] {
            for (int I = 0; I < cItems; ++I) {
                List.Add(I);
                if (I % 3 == 0) {
                    const auto Locked = List.Lock();
                    Locked->Remove(I);
                    List.Add(I);
                }
            }
        });
    for (std::thread& Each : Threads)
        Each.join();
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

class IFirst : public IInterface {
public:
    static constexpr TGUID IID = Guid("{5D2D7C11-6C50-4F8C-9B0A-0D5B2E3A7F01}");
};
class ISecond : public IInterface {
public:
    static constexpr TGUID IID = Guid("{5D2D7C11-6C50-4F8C-9B0A-0D5B2E3A7F02}");
};
class TBoth : public TInterfacedObject, public IFirst, public ISecond {
    QZ_CLASS(TBoth, TInterfacedObject)
    QZ_INTERFACE_COUNTING(TInterfacedObject)
protected:
    ~TBoth() override { GTrace += u"gone "; }
};
constinit const TClassRec TBoth::ClassRec =
    DescribeClass<TBoth>(u"TBoth", {.Unit = u"Test", .Interfaces = Interfaces<TBoth, IFirst, ISecond>()});

TEST(InterfaceList, KnowsAnObjectByAnyOfItsInterfaces) {
    GTrace.Clear();
    TInterfaceList List;
    {
        const Ref<IFirst> First = TBoth::Create();
        const Ref<ISecond> Second = As<ISecond>(First);
        EXPECT_EQ(List.Add(First), 0);
        List.Insert(0, nullptr);
        EXPECT_EQ(List.IndexOf(Second.Get()), 1);
        EXPECT_EQ(List.IndexOf(nullptr), 0);
        EXPECT_EQ(As<ISecond>(List.Last()), Second);
    }
    EXPECT_EQ(GTrace, "");
    EXPECT_THROW(List[2], EListError);
    EXPECT_THROW(List.Insert(3, nullptr), EListError);
    List.Exchange(0, 1);
    List.Delete(0);
    EXPECT_EQ(GTrace, "gone ");
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
    Ages.AddOrSetValue(u"Adam", 5);
    EXPECT_EQ(Raised([&] { Ages[u"Eve"] = 1; }), "EListError: Item not found");
    int Age = -1;
    EXPECT_FALSE(Ages.TryGetValue(u"Eve", Age));
    EXPECT_EQ(Age, 0);
    EXPECT_TRUE(Ages.ContainsValue(5));
    TDynArray<UnicodeString> Keys = Ages.Keys();
    std::sort(Keys.begin(), Keys.end());
    EXPECT_EQ(Keys, (TDynArray<UnicodeString>{u"Adam", u"Zoe"}));
    EXPECT_EQ(Ages.ExtractPair(u"Zoe"), std::make_pair(UnicodeString(u"Zoe"), 33));
    EXPECT_EQ(Ages.ExtractPair(u"Zoe"), std::make_pair(UnicodeString(u"Zoe"), 0));
    EXPECT_EQ(Ages.Values(), TDynArray<int>{5});
}

} // namespace
} // namespace qz
