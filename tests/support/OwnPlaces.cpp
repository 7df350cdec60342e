// The tests leave nothing in the home and in the folders of the system: these lie elsewhere while they run.
#include <gtest/gtest.h>

#include <utility>

#include "tests/support/TemporaryDirectory.h"
#include "tests/support/Variables.h"

namespace qz::platform {
namespace {

// Ended by the last test, and not by a child of fork() that exits.
TTemporaryDirectory* GDirectory = nullptr;
TVariables* GVariables = nullptr;

class TOwnPlaces : public testing::Environment {
public:
    void SetUp() override {
        GDirectory = new TTemporaryDirectory;
        GVariables = new TVariables;
        GVariables->Set(u"HOME", GDirectory->Path());
        GVariables->Set(u"STATE_DIRECTORY", GDirectory->Path());
        for (const char16_t* Name :
             {u"XDG_CONFIG_HOME", u"XDG_DATA_HOME", u"XDG_CACHE_HOME", u"XDG_STATE_HOME"})
            GVariables->Set(Name, std::nullopt);
    }
    void TearDown() override {
        delete std::exchange(GVariables, nullptr);
        delete std::exchange(GDirectory, nullptr);
    }
};

[[maybe_unused]] auto* const GOwnPlaces = testing::AddGlobalTestEnvironment(new TOwnPlaces);

} // namespace
} // namespace qz::platform
