#include <qz/runtime/values/SystemVariant.h>

#include <gtest/gtest.h>

#include <qz/runtime/objects/InterfacedObject.h>
#include <qz/runtime/values/VariantArray.h>

namespace qz {
namespace {

TEST(SystemVariant, IsAnErrorWhereThereAreNone) {
    alignas(8) std::byte Room[24]{};
    auto* Target = reinterpret_cast<tagVARIANT*>(Room);
    const Ref<TInterfacedObject> Object = TInterfacedObject::Create();
    for (const Variant& Value : {Variant(1), Variant(u"text"), VarArrayOf({1}), Variant(Object)})
        EXPECT_THROW(VariantToSystem(Value, Target), EOSError);
    EXPECT_THROW(VariantFromSystem(Target), EOSError);
    EXPECT_EQ(Object->RefCount(), 1);
}

} // namespace
} // namespace qz
