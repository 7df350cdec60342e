#include <qz/common/Version.h>

#include <gtest/gtest.h>

namespace {

TEST(Version, IsTheOneThePackageIsBuiltAs) {
    EXPECT_EQ(qz::Version(), QZ_PROJECT_VERSION);
}

} // namespace
