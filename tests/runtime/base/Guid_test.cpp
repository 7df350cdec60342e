#include <qz/runtime/text/GuidText.h>

#include <gtest/gtest.h>

#include <qz/runtime/objects/Exceptions.h>

namespace qz {
namespace {

TEST(Guid, TextAndBack) {
    constexpr TGUID cId = Guid("{0417F540-9CCC-4DE6-B2C4-1063D0508346}");
    EXPECT_EQ(cId.D1, 0x0417F540u);
    EXPECT_EQ(cId.D4[7], 0x46);
    EXPECT_EQ(GUIDToString(cId), u"{0417F540-9CCC-4DE6-B2C4-1063D0508346}");
    EXPECT_TRUE(IsEqualGUID(StringToGUID(u"{0417f540-9ccc-4de6-b2c4-1063d0508346}"), cId));
}

TEST(Guid, RefusesEveryOtherForm) {
    const std::u16string Good = u"{0417F540-9CCC-4DE6-B2C4-1063D0508346}";
    EXPECT_THROW(StringToGUID(u""), EConvertError);
    EXPECT_THROW(StringToGUID(Good.substr(1, 36)), EConvertError);
    EXPECT_THROW(StringToGUID(Good + u" "), EConvertError);
    for (std::size_t I = 0; I < Good.size(); ++I) {
        std::u16string Bad = Good;
        Bad[I] = u'G';
        EXPECT_THROW(StringToGUID(Bad), EConvertError) << I;
    }
}

} // namespace
} // namespace qz
