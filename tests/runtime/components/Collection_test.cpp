#include <gtest/gtest.h>

#include "tests/support/Trace.h"
#include <qz/runtime/components/Collection.h>
#include <qz/runtime/objects/Exceptions.h>

namespace qz {
namespace {

class TLabel : public TCollectionItem {
    QZ_CLASS(TLabel, TCollectionItem)
public:
    explicit TLabel(TCollection* ACollection) : TCollectionItem(ACollection) {}
    ~TLabel() override { Note("freed", FName); }
    void SetName(const UnicodeString& AName) {
        FName = AName;
        Changed(false);
    }
    UnicodeString DisplayName() const override { return FName; }
    void Assign(TPersistent* ASource) override {
        if (dynamic_cast<TLabel*>(ASource) == nullptr)
            Inherited::Assign(ASource);
        SetName(static_cast<TLabel*>(ASource)->FName);
    }

private:
    UnicodeString FName;
};
constinit const TClassRec TLabel::ClassRec =
    DescribeClass<TLabel>(u"TLabel", {.Unit = u"Test", .Makers = CollectionItemMaker<TLabel>()});

class TLabels : public TOwnedCollection {
    QZ_CLASS(TLabels, TOwnedCollection)
public:
    explicit TLabels(TPersistent* AOwner = nullptr) : TOwnedCollection(AOwner, ClassOf<TLabel>()) {}
    TLabel* AddLabel(const UnicodeString& AName) {
        auto* Result = static_cast<TLabel*>(Add());
        Result->SetName(AName);
        return Result;
    }
    UnicodeString Order() const {
        UnicodeString Result;
        for (const TCollectionItem* Each : *this)
            Result += Each->DisplayName();
        return Result;
    }

protected:
    void Update(TCollectionItem* AItem) override {
        GTrace += AItem == nullptr ? UnicodeString(u"all ") : u"one(" + AItem->DisplayName() + u") ";
    }
    void Notify(TCollectionItem*, TCollectionNotification AAction) override {
        GTrace += AAction == cnAdded ? u"added " : AAction == cnDeleting ? u"deleting " : u"extracting ";
    }
};
constinit const TClassRec TLabels::ClassRec = DescribeClass<TLabels>(u"TLabels", {.Unit = u"Test"});

class Collections : public testing::Test {
protected:
    void SetUp() override { TakeTrace(); }
};

TEST_F(Collections, MakeKeepAndEndTheirItems) {
    {
        TLabels Labels;
        Labels.AddLabel(u"a");
        EXPECT_EQ(TakeTrace(), "added all one(a) ");
        Labels.BeginUpdate();
        Labels.AddLabel(u"b");
        static_cast<TLabel*>(Labels.Insert(0))->SetName(u"c");
        Labels.EndUpdate();
        EXPECT_EQ(TakeTrace(), "added added all ");
        EXPECT_EQ(Labels.Order(), "cab");
        Labels.Delete(1);
        EXPECT_EQ(TakeTrace(), "deleting freed(a) all ");
        EXPECT_EQ(Labels.FindItemID(2), Labels[0]);
        EXPECT_EQ(Labels.AddLabel(u"d")->ID(), 3);
        EXPECT_THROW(Labels.Delete(3), EListError);
        EXPECT_THROW(Labels.Insert(-1), EListError);
        TakeTrace();
    }
    EXPECT_EQ(TakeTrace(), "freed(d) freed(b) freed(c) ");
}

TEST_F(Collections, ItemsMoveLeaveAndJoin) {
    TLabels Labels, Others;
    TLabel* A = Labels.AddLabel(u"a");
    Labels.AddLabel(u"b");
    Labels.AddLabel(u"c");
    A->SetIndex(1);
    EXPECT_EQ(Labels.Order(), "bac");
    A->SetIndex(-5);
    EXPECT_EQ(Labels.Order(), "abc");
    Others.AddLabel(u"x");
    TakeTrace();
    A->SetCollection(&Others);
    EXPECT_EQ(TakeTrace(), "extracting all added all ");
    EXPECT_EQ(A->ID(), 1);
    EXPECT_EQ(Others.Order(), "xa");
    A->Free();
    EXPECT_EQ(Others.Order(), "x");
    TCollectionItem Plain(nullptr);
    EXPECT_THROW(Plain.SetCollection(&Labels), EInvalidOperation);
    EXPECT_THROW(TCollection(ClassOf<TObject>()), EInvalidOperation);
}

TEST_F(Collections, AssignCopiesEachItem) {
    TLabels From, To;
    From.AddLabel(u"a");
    From.AddLabel(u"b");
    To.AddLabel(u"old");
    TakeTrace();
    To.Assign(&From);
    EXPECT_EQ(To.Order(), "ab");
    EXPECT_EQ(TakeTrace(), "deleting freed(old) added added all ");
    TCollection Plain(ClassOf<TCollectionItem>());
    Plain.Add();
    EXPECT_THROW(To.Assign(&Plain), EConvertError); // a label is no plain item
    TakeTrace();
    From.AddLabel(u"c");
    To.AddLabel(u"d");
    EXPECT_EQ(TakeTrace(), "added all one(c) added all one(d) "); // the update that failed has ended
    EXPECT_EQ(From[1]->GetNamePath(), "TLabels[1]");
}

} // namespace
} // namespace qz
