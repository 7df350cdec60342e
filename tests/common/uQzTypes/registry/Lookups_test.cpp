// Look-ups in the registry against a walk of plain lists, and from many threads at once.
#include <gtest/gtest.h>

#include <algorithm>
#include <deque>
#include <map>
#include <memory>
#include <random>
#include <set>

#include "tests/support/AtOnce.h"
#include <qz/common/uQzTypes/registry/QzTypes.h>
#include <qz/runtime/base/StringUtils.h>
#include <qz/runtime/objects/Describe.h>

namespace qz {
namespace {

constexpr int cKinds = static_cast<int>(tkProcedure) + 1;

// A description made at run time; like any other it is never destroyed.
PTypeInfo NewType(TTypeKind AKind, const UnicodeString& AUnit, const UnicodeString& AName, bool AIsPublic) {
    static auto* const Texts = new std::deque<UnicodeString>;
    auto* const Result = new TTypeInfo(*TypeInfo<int>());
    static auto* const Types = new std::deque<std::unique_ptr<TTypeInfo>>;
    Types->emplace_back(Result);
    Result->Kind = AKind;
    Result->Name = Texts->emplace_back(AName);
    Result->Unit = Texts->emplace_back(AUnit);
    Result->IsPublic = AIsPublic;
    return Result;
}

// What the registry is said to be: one list a kind, walked from its head.
struct TListModel {
    std::vector<TQzTypeInfo*> Lists[cKinds];

    void Add(TTypeKind AList, PTypeInfo AType, const UnicodeString& AFullName, TQzTypeInfo* AResult) {
        std::vector<TQzTypeInfo*>& List = Lists[static_cast<int>(AList)];
        for (TQzTypeInfo* const Each : List)
            if (Each->TypeInfo() == AType || Each->FullName() == AFullName) {
                ASSERT_EQ(AResult, Each) << AFullName;
                return;
            }
        ASSERT_EQ(AResult->FullName(), AFullName);
        ASSERT_EQ(AResult->TypeInfo(), AType);
        List.push_back(AResult);
    }
    template <class TMatches>
    TQzTypeInfo* Find(const TTypeKindArray& AKinds, const TMatches& AMatches) const {
        for (const TTypeKind Kind : AKinds)
            for (TQzTypeInfo* const Each : Lists[static_cast<int>(Kind)])
                if (AMatches(*Each))
                    return Each;
        return nullptr;
    }
};

class TRandomRegistry {
public:
    explicit TRandomRegistry(unsigned ASeed) : FRandom(ASeed) {}

    void Change() {
        const int Step = Below(20);
        if (Step < 12 || FTypes.empty()) {
            AddType();
        } else if (Step < 14) { // again, under another name
            PTypeInfo Type = Any(FTypes);
            const UnicodeString Name = u"W9." + Word();
            FModel.Add(Type->Kind, Type, Name,
                       TQzTypes::AddTypeRec(TRttiType(Type), Word(), Name, rtkRecord, 36, xsdInt, {Word()},
                                            tkUnknown, nullptr)
                           ->Info);
        } else if (Step < 16) {
            TQzTypeInfo* const Info = TQzTypes::GetTypeInfo(Any(FTypes));
            const auto Kind = static_cast<TTypeKind>(Below(cKinds - 1) + 1);
            FModel.Add(Kind, Info->TypeInfo(), Info->FullName(),
                       TQzTypes::AddTypeRec(Info->RttiInfo(), Info->ShortName(), Info->FullName(), rtkLongInt,
                                            3, xsdInt, {Word()}, Kind, Info->TypeRec())
                           ->Info);
        } else if (Step < 18) {
            TQzTypes::RegisterTypeAlias(Any(FTypes), {Word(), Word()});
        } else {
            TQzTypes::GetTypeInfo(Any(FTypes))->SetDefaultSchemaName(Word());
        }
    }

    void Compare() {
        TTypeKindArray Kinds(static_cast<std::size_t>(Below(8)));
        for (TTypeKind& Each : Kinds)
            Each = static_cast<TTypeKind>(Below(cKinds));
        const UnicodeString Short = Word();
        ASSERT_EQ(TQzTypes::FindByShortName(Short, Kinds),
                  FModel.Find(Kinds, [&](const TQzTypeInfo& AInfo) { return AInfo.ShortName() == Short; }));
        const UnicodeString Full = Unit() + u'.' + Word();
        ASSERT_EQ(TQzTypes::FindByFullName(Full, Kinds),
                  FModel.Find(Kinds, [&](const TQzTypeInfo& AInfo) { return AInfo.FullName() == Full; }));
        const UnicodeString Schema = Below(2) == 0 ? Word() : Unit() + u'_' + Word().View().substr(1);
        ASSERT_EQ(TQzTypes::FindBySchemaName(u"p:" + Schema, Kinds),
                  FModel.Find(Kinds, [&](const TQzTypeInfo& AInfo) {
                      return std::any_of(AInfo.SchemaNames().begin(), AInfo.SchemaNames().end(),
                                         [&](const UnicodeString& AName) { return SameText(AName, Schema); });
                  }));
        const PTypeInfo Type = Any(FTypes);
        const PQzTypeRec Rec = TQzTypes::FindTypeRec(Type);
        ASSERT_EQ(
            Rec == nullptr ? nullptr : Rec->Info,
            FModel.Find({Type->Kind}, [&](const TQzTypeInfo& AInfo) { return AInfo.TypeInfo() == Type; }));
    }

private:
    int Below(int ALimit) { return std::uniform_int_distribution(0, ALimit - 1)(FRandom); }
    template <class T> T Any(const std::vector<T>& AItems) {
        return AItems[static_cast<std::size_t>(Below(static_cast<int>(AItems.size())))];
    }
    // Few enough to meet again, in either case of letters.
    UnicodeString Word() {
        UnicodeString Result = Below(2) == 0 ? u"T" : u"t";
        for (int Count = Below(9); Count >= 0; --Count)
            Result += static_cast<char16_t>(Count < 7 ? u'q' : u"zZ[@"[Below(4)]);
        return Result;
    }
    UnicodeString Unit() { return Below(2) == 0 ? u"W1" : u"w1"; }

    void AddType() {
        static constexpr TTypeKind cOwn[] = {tkEnumeration, tkSet, tkRecord, tkDynArray, tkPointer, tkMethod};
        const PTypeInfo Type = NewType(cOwn[Below(6)], Unit(), Word(), Below(4) != 0);
        FTypes.push_back(Type);
        FModel.Add(Type->Kind, Type, Type->QualifiedName(), TQzTypes::GetTypeInfo(Type));
    }

    std::minstd_rand FRandom;
    TListModel FModel;
    std::vector<PTypeInfo> FTypes;
};

TEST(TypeRegistry, LookUpsGiveWhatAWalkOfTheListsGives) {
    TRandomRegistry Registry(5);
    for (int Step = 0; Step < 3000 && !testing::Test::HasFatalFailure(); ++Step) {
        Registry.Change();
        for (int Count = 0; Count < 4 && !testing::Test::HasFatalFailure(); ++Count)
            Registry.Compare();
    }
}

// Eight threads register the same types in orders of their own while eight others look them up.
TEST(TypeRegistry, ThreadsShareOneEntryAType) {
    constexpr int cThreads = 8;
    constexpr std::size_t cTypes = 600;
    std::vector<PTypeInfo> Types;
    for (std::size_t Index = 0; Index < cTypes; ++Index)
        Types.push_back(NewType(tkSet, u"AtOnce", u"TSet" + UnicodeString(Index + 1, u'x'), true));
    std::vector<std::vector<TQzTypeInfo*>> Made(cThreads, std::vector<TQzTypeInfo*>(cTypes));
    AtOnce(2 * cThreads, [&](int AThread) {
        std::vector<std::size_t> Order(cTypes);
        for (std::size_t Index = 0; Index < cTypes; ++Index)
            Order[Index] = Index;
        std::shuffle(Order.begin(), Order.end(), std::minstd_rand(static_cast<unsigned>(AThread)));
        for (const std::size_t Index : Order) {
            const UnicodeString Schema = u"AtOnce_Set" + UnicodeString(Index + 1, u'x');
            if (AThread < cThreads) {
                Made[static_cast<std::size_t>(AThread)][Index] = TQzTypes::GetTypeInfo(Types[Index]);
                TQzTypes::RegisterTypeAlias(Types[Index], u"a" + Schema);
                EXPECT_EQ(TQzTypes::FindBySchemaName(u"a" + Schema, {tkSet})->TypeInfo(), Types[Index]);
            } else if (TQzTypeInfo* const Found = TQzTypes::FindBySchemaName(Schema, {tkSet})) {
                EXPECT_EQ(Found->TypeInfo(), Types[Index]);
                EXPECT_TRUE(Found->SchemaName(u"").View().ends_with(Schema));
                EXPECT_EQ(TQzTypes::FindByFullName(Found->FullName(), {tkInteger, tkSet}), Found);
            }
        }
    });
    for (int Thread = 1; Thread < cThreads; ++Thread)
        EXPECT_EQ(Made[static_cast<std::size_t>(Thread)], Made[0]);
    std::multiset<PTypeInfo> InList; // from the first of the types on
    const PQzTypeRec Known = TQzTypes::FindTypeRec(TypeInfo<TCharSet>());
    for (PQzTypeRec Rec = Known != nullptr ? Known : Made[0][0]->TypeRec(); Rec != nullptr; Rec = Rec->Next)
        InList.insert(Rec->Info->TypeInfo());
    for (const PTypeInfo Type : Types)
        EXPECT_LE(InList.count(Type), 1u);
}

} // namespace
} // namespace qz
