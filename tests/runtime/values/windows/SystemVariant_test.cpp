#include <qz/runtime/values/SystemVariant.h>

#include <cstring>
#include <limits>
#include <memory>

#include <gtest/gtest.h>

#include "tests/support/SampleVariants.h"
#include <qz/platform/Module.h>
#include <qz/runtime/objects/InterfacedObject.h>
#include <qz/runtime/values/VariantArray.h>
#include <qz/runtime/values/VariantConvert.h>

// What the system's headers say of it, as far as it is of use here.
struct tagVARIANT {
    std::uint16_t Type;
    std::uint8_t Scale, Sign;
    std::uint32_t High;
    union {
        std::int64_t Integer;
        void* Pointer;
    };
    void* More;
};

namespace qz {
namespace {

// A function of the system's own.
template <class T> T* Automation(const char* AName) {
    return reinterpret_cast<T*>(platform::FindModuleFunction(u"oleaut32.dll", AName));
}

const auto CopyValue = Automation<std::int32_t(tagVARIANT*, const tagVARIANT*)>("VariantCopy");
const auto ClearValue = Automation<std::int32_t(tagVARIANT*)>("VariantClear");
const auto GetElement = Automation<std::int32_t(void*, std::int32_t*, void*)>("SafeArrayGetElement");

struct TSystem : tagVARIANT {
    TSystem() : tagVARIANT() {}
    explicit TSystem(const Variant& AValue) : TSystem() { VariantToSystem(AValue, this); }
    TSystem(const TSystem&) = delete;
    TSystem& operator=(const TSystem&) = delete;
    ~TSystem() { ClearValue(this); }
};

TEST(SystemVariantWindows, EachTypeThereAndBack) {
    std::vector<Variant> Values = {Variant(), Variant::Null(), WideString()};
    for (const Variant& Value : SampleVariants()) {
        if (VarType(Value) != varUString && VarType(Value) != varString) // which the system does not have
            Values.push_back(Value);
    }
    for (const Variant& Value : Values) {
        const TSystem There(Value);
        EXPECT_EQ(There.Type, VarType(Value));
        TSystem Copy; // the system can handle it
        ASSERT_EQ(CopyValue(&Copy, &There), 0);
        const Variant Back = VariantFromSystem(&Copy);
        EXPECT_EQ(VarType(Back), VarType(Value));
        EXPECT_TRUE(Back == Value) << VarToStr(Value);
    }
}

TEST(SystemVariantWindows, FollowsReferencesAndKnowsMoreCodes) {
    std::int32_t Number = -5;
    TSystem Inner, Outer;
    Inner.Type = varInteger | varByRef;
    Inner.Pointer = &Number;
    Outer.Type = varVariant | varByRef;
    Outer.Pointer = &Inner;
    EXPECT_TRUE(VariantFromSystem(&Outer) == Variant(-5));
    Inner.Pointer = nullptr;
    EXPECT_THROW(VariantFromSystem(&Outer), EOSError);
    Outer.Pointer = &Outer;
    EXPECT_THROW(VariantFromSystem(&Outer), EOSError);
    Outer.Type = varEmpty;
    Inner.Type = varEmpty;
    for (const std::uint16_t Code : {varVariant, varRecord, std::uint16_t{15}, std::uint16_t{0x1003}}) {
        TSystem Value;
        Value.Type = Code;
        EXPECT_THROW(VariantFromSystem(&Value), EVariantTypeCastError) << Code;
        Value.Type = varEmpty;
    }
}

TEST(SystemVariantWindows, ArraysOfAnyShape) {
    Variant Grid = VarArrayCreate({1, 2, -1, 1}, varInteger);
    for (int I = 1; I <= 2; ++I)
        for (int J = -1; J <= 1; ++J)
            VarArrayPut(Grid, 10 * I + J, {I, J});
    const TSystem There(Grid);
    std::int32_t Indexes[] = {2, -1}, Element = 0;
    ASSERT_EQ(GetElement(There.Pointer, Indexes, &Element), 0);
    EXPECT_EQ(Element, 19);
    const Variant Back = VariantFromSystem(&There);
    EXPECT_EQ(VarArrayLowBound(Back, 2) * 10 + VarArrayHighBound(Back, 2), -9);
    EXPECT_EQ(VarToInteger(VarArrayGet(Back, {1, 1})), 11);

    Variant Deep = 1;
    for (int I = 0; I < 101; ++I)
        Deep = VarArrayOf({Deep});
    TSystem Kept(7);
    EXPECT_THROW(VariantToSystem(Deep, &Kept), EVariantTypeCastError);
    EXPECT_TRUE(VariantFromSystem(&Kept) == Variant(7));
}

TEST(SystemVariantWindows, CountsInterfacesExactly) {
    TInterfacedObject* const Object = TInterfacedObject::Create();
    const Ref<IInterface> Guard = Object;
    for (const Variant& Value : {Variant(Guard), Variant::Dispatch(Guard), VarArrayOf({Guard}),
                                 VarAsType(VarArrayOf({Guard}), varArray | varUnknown)}) {
        const int Before = Object->RefCount();
        {
            TSystem There(Value);
            EXPECT_EQ(Object->RefCount(), Before + 1);
            const Variant Back = VariantFromSystem(&There);
            EXPECT_EQ(VarType(Back), VarType(Value));
            EXPECT_EQ(Object->RefCount(), Before + 2);
            VariantToSystem(1, &There);
            EXPECT_EQ(Object->RefCount(), Before + 1);
            EXPECT_THROW(VariantToSystem(VarArrayOf({Guard, Object}), &There), EVariantTypeCastError);
        }
        EXPECT_EQ(Object->RefCount(), Before);
    }
    TSystem Nothing;
    EXPECT_THROW(VariantToSystem(Object, &Nothing), EVariantTypeCastError);
}

} // namespace
} // namespace qz
