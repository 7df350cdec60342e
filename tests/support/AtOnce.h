// Runs a function in several threads at once.
#pragma once

#include <thread>
#include <vector>

namespace qz {

// Calls AWork(0) to AWork(ACount - 1), each in a thread of its own, and waits for all of them.
template <class TWork> void AtOnce(int ACount, const TWork& AWork) {
    std::vector<std::thread> Threads;
    for (int Index = 0; Index < ACount; ++Index)
        Threads.emplace_back([&AWork, Index] { AWork(Index); });
    for (std::thread& Each : Threads)
        Each.join();
}

} // namespace qz
