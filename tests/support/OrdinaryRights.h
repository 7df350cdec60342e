// Takes from this thread what root may do beyond the rights of files. The user stays, so that every directory
// that he owns stays open to him.
#pragma once

#include <array>

#include <linux/capability.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <gtest/gtest.h>

namespace qz {

class TOrdinaryRights {
public:
    TOrdinaryRights() {
        EXPECT_EQ(syscall(SYS_capget, &FHeader, FData.data()), 0);
        TData None = FData;
        for (__user_cap_data_struct& Part : None)
            Part.effective = 0;
        EXPECT_EQ(syscall(SYS_capset, &FHeader, None.data()), 0);
    }
    TOrdinaryRights(const TOrdinaryRights&) = delete;
    TOrdinaryRights& operator=(const TOrdinaryRights&) = delete;
    ~TOrdinaryRights() { EXPECT_EQ(syscall(SYS_capset, &FHeader, FData.data()), 0); }

private:
    using TData = std::array<__user_cap_data_struct, 2>;
    __user_cap_header_struct FHeader = {_LINUX_CAPABILITY_VERSION_3, 0};
    TData FData = {};
};

} // namespace qz
