#include <gtest/gtest.h>

#include <atomic>
#include <thread>

#include "tests/common/support/linux/InChild.h"
#include <qz/common/uQzTypes/registry/QzTypes.h>

namespace qz {
namespace {

// A child of a fork uses the registry, which another thread was changing at the time of the fork.
TEST(TypeRegistry, ChildrenOfAForkMayRegister) {
    std::atomic<bool> IsDone{false};
    std::thread Writer([&] {
        while (!IsDone)
            for (const std::u16string_view Name : {u"forkA", u"forkB"})
                TQzTypes::GetTypeInfo(rtkWord)->SetDefaultSchemaName(Name);
    });
    for (int Count = 0; cChildrenCanAllocate && Count < 50; ++Count)
        InChild([] {
            TQzTypes::GetTypeInfo(rtkWord)->SetDefaultSchemaName(u"inChild");
            return TQzTypes::GetTypeInfo(u"inchild", tntSchemaName)->TypeKind() == rtkWord;
        });
    IsDone = true;
    Writer.join();
    TQzTypes::GetTypeInfo(rtkWord)->SetDefaultSchemaName(u"unsignedShort");
}

} // namespace
} // namespace qz
