#include <qz/platform/CommandLine.h>

#include <gtest/gtest.h>

namespace qz::platform {
namespace {

// GoogleTest keeps what main was given.
TEST(CommandLine, ArgumentsAreThoseOfMain) {
    const std::vector<std::string> Expected = testing::internal::GetArgvs();
    const std::vector<std::u16string> Arguments = CommandLineArguments();
    ASSERT_EQ(Arguments.size() + 1, Expected.size());
    for (std::size_t I = 0; I < Arguments.size(); ++I)
        EXPECT_EQ(Expected[I + 1], std::string(Arguments[I].begin(), Arguments[I].end()));
}

} // namespace
} // namespace qz::platform
