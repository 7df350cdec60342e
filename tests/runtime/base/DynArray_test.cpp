#include <qz/runtime/base/DynArray.h>

#include <gtest/gtest.h>

#include <qz/runtime/base/Set.h>

namespace qz {
namespace {

TEST(DynArray, ElementWritesAreSharedAndResizesAreNot) {
    TBytes A = {1, 2, 3};
    TBytes B = A;
    A[0] = 9;
    EXPECT_EQ(B[0], 9);
    EXPECT_TRUE(A.IsSameArray(B));
    A.SetLength(3);
    EXPECT_FALSE(A.IsSameArray(B));
    A.SetLength(5);
    EXPECT_EQ(A, (TBytes{9, 2, 3, 0, 0}));
    A.SetLength(1);
    EXPECT_EQ(A, TBytes{9});
    EXPECT_EQ(B, (TBytes{9, 2, 3}));
    EXPECT_EQ(B.Copy(1, 1), TBytes{2});
    EXPECT_EQ(B.Copy(2, 9), TBytes{3});
    EXPECT_TRUE(B.Copy(3).empty());
}

// Counts its living copies, and refuses to be copied once too often.
struct TFragile {
    static inline int Living = 0;
    static inline int CopiesLeft = 1000;
    TFragile() { ++Living; }
    TFragile(const TFragile&) {
        if (CopiesLeft-- == 0)
            throw std::runtime_error("no more");
        ++Living;
    }
    TFragile& operator=(const TFragile&) = default;
    ~TFragile() { --Living; }
};

TEST(DynArray, AnExceptionLeavesTheArrayAsItWas) {
    {
        TDynArray<TFragile> A(4);
        TFragile::CopiesLeft = 2;
        EXPECT_THROW(A.SetLength(6), std::runtime_error);
        EXPECT_EQ(A.Length(), 4u);
        EXPECT_EQ(TFragile::Living, 4);
        TFragile::CopiesLeft = 1000;
        A.SetLength(2);
        EXPECT_EQ(TFragile::Living, 2);
    }
    EXPECT_EQ(TFragile::Living, 0);
    EXPECT_THROW(TBytes().SetLength(static_cast<std::size_t>(-1)), std::length_error);
}

enum class TColour { Red, Green, Blue = 7, Last = 63 };

TEST(Set, KeepsWhatIsPutIn) {
    using TColours = TSet<TColour, 64>;
    TColours Set = {TColour::Red, TColour::Last};
    EXPECT_TRUE(Set.Contains(TColour::Last) && !Set.Contains(TColour::Green));
    Set += TColour::Blue;
    Set -= TColour::Red;
    EXPECT_EQ(Set, (TColours{TColour::Blue, TColour::Last}));
    EXPECT_TRUE(Set.Includes(TColour::Blue) && !Set.Includes({TColour::Blue, TColour::Red}));
    EXPECT_EQ(Set * TColours::Range(TColour::Red, TColour::Blue), TColours(TColour::Blue));
    EXPECT_TRUE((Set - Set).IsEmpty());
    EXPECT_EQ((TSet<TColour, 8>{TColour::Red, TColour::Blue}.ToBits()), 0x81);
}

static_assert(TCharSet::Range('0', '9').Contains('5') && !TCharSet::Range('0', '9').Contains(0x100 + '5'));
static_assert(TCharSet::Range('\0', '\xFF').Contains(0xFF));

} // namespace
} // namespace qz
