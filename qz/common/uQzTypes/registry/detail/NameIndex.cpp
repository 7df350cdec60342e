#include <qz/common/uQzTypes/registry/detail/NameIndex.h>

namespace qz::detail {

TNewNames TNameIndex::Make(std::span<const UnicodeString> ANames, TTypeEntry& AEntry) {
    TNewNames Result;
    Result.reserve(ANames.size());
    for (const UnicodeString& Name : ANames)
        Result.push_back(std::make_unique<TTypeName>(Name, AEntry));
    return Result;
}

void TNameIndex::Add(TNewNames ANames) noexcept {
    for (std::unique_ptr<TTypeName>& Fresh : ANames) {
        TTypeName* Same = FindName(Fresh->Name);
        if (Same == nullptr) {
            FTable.Add(HashName(Fresh->Name, FCase), *Fresh);
            Fresh.release(); // NOLINT(bugprone-unused-return-value)
            continue;
        }
        while (Same->List != Fresh->List && Same->Next != nullptr)
            Same = Same->Next;
        TTypeEntry* const Entry = Fresh->First;
        if (Same->List != Fresh->List)
            Same->Next.store(Fresh.release(), std::memory_order_release);
        else if (Entry->Order < Same->First.load(std::memory_order_relaxed)->Order)
            Same->First.store(Entry, std::memory_order_release);
    }
}

} // namespace qz::detail
