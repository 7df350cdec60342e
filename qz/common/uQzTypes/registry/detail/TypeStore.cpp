#include <qz/common/uQzTypes/registry/detail/TypeStore.h>

#include <algorithm>

#include <qz/platform/Module.h>
#include <qz/runtime/base/StringUtils.h>

namespace qz::detail {
namespace {

constexpr std::size_t IndexOf(TTypeKind AKind) noexcept {
    return static_cast<std::size_t>(AKind);
}

} // namespace

// Names of ASCII, which almost all are, need no collation.
bool SameInNameList(const UnicodeString& ALeft, const UnicodeString& ARight) {
    const auto IsAscii = [](const UnicodeString& AText) {
        return std::ranges::all_of(AText.View(), [](char16_t AChar) { return AChar < 0x80; });
    };
    return IsAscii(ALeft) && IsAscii(ARight) ? SameName(ALeft, ARight, TNameCase::Ignored)
                                             : AnsiSameText(ALeft, ARight);
}

// The same handle or the same full name in the same list, whichever comes first.
TTypeEntry* TTypeStore::FindSame(const TTypeEntry& AEntry) const noexcept {
    const TTypeKind List[] = {AEntry.List};
    TTypeEntry* ByHandle = nullptr;
    if (AEntry.List == AEntry.Info->GetKind()) {
        ByHandle = FindHandle(AEntry.Info->TypeInfo());
        if (ByHandle != nullptr && ByHandle->Info->TypeInfo() != AEntry.Info->TypeInfo())
            ByHandle = nullptr;
    } else { // virtual types are few
        ByHandle = FTypesFirst[IndexOf(AEntry.List)];
        while (ByHandle != nullptr && ByHandle->Info->TypeInfo() != AEntry.Info->TypeInfo())
            ByHandle = static_cast<TTypeEntry*>(ByHandle->Next.load(std::memory_order_relaxed));
    }
    TTypeEntry* const ByName = FNames[FullNames].Find(AEntry.Info->FullName(), TKindRanks(List));
    if (ByHandle == nullptr || ByName == nullptr)
        return ByHandle == nullptr ? ByName : ByHandle;
    return ByHandle->Order < ByName->Order ? ByHandle : ByName;
}

// Everything that may fail comes before the first change.
TTypeEntry& TTypeStore::Insert(std::unique_ptr<TTypeEntry> AEntry) {
    TQzTypeInfo& Info = *AEntry->Info;
    const bool IsNatural = AEntry->List == Info.GetKind();
    const auto Handle = reinterpret_cast<std::uintptr_t>(Info.TypeInfo());
    TNewNames Full = TNameIndex::Make({&Info.FullName(), 1}, *AEntry);
    TNewNames Short = TNameIndex::Make({&Info.ShortName(), 1}, *AEntry);
    TNewNames Schema = TNameIndex::Make(Info.SchemaNames(), *AEntry);
    platform::PinModule(Info.TypeInfo());

    const std::scoped_lock Hold(FTypesLock);
    FHandles.Reserve(1);
    if (TTypeEntry* const Same = FindSame(*AEntry)) {
        if (IsNatural && FindHandle(Info.TypeInfo()) == nullptr)
            FHandles.Add(Handle, *Same);
        return *Same;
    }
    FNames[FullNames].Reserve(1);
    FNames[ShortNames].Reserve(1);
    FNames[SchemaNames].Reserve(Schema.size());

    TTypeEntry& Entry = *AEntry.release();
    Entry.Order = FCount++;
    TTypeEntry*& Last = FTypesLast[IndexOf(Entry.List)];
    if (Last == nullptr)
        FTypesFirst[IndexOf(Entry.List)] = &Entry;
    else
        Last->Next.store(&Entry, std::memory_order_release);
    Last = &Entry;
    FNames[FullNames].Add(std::move(Full));
    FNames[ShortNames].Add(std::move(Short));
    FNames[SchemaNames].Add(std::move(Schema));
    if (IsNatural)
        FHandles.Set(Handle, Entry);
    return Entry;
}

void TTypeStore::PutNamesFirst(TQzTypeInfo& AInfo, std::span<const UnicodeString> ANames, TNameCase ACase) {
    const std::scoped_lock Hold(FTypesLock);
    const TSchemaNames* const Old = AInfo.FSchemaNames.load(std::memory_order_relaxed);
    auto Fresh = std::make_unique<TSchemaNames>(TSchemaNames{{ANames.begin(), ANames.end()}, true});
    for (const UnicodeString& Name : Old->Names)
        if (std::none_of(Fresh->Names.begin(), Fresh->Names.end(), [&](const UnicodeString& AEach) {
                return ACase == TNameCase::Ignored ? SameInNameList(AEach, Name) : AEach == Name;
            }))
            Fresh->Names.push_back(Name);
    const TSchemaNames* Same = AInfo.FAllNames.get();
    while (Same != nullptr && !(Same->IsCustom && Same->Names == Fresh->Names))
        Same = Same->Older.get();
    if (Same != nullptr) {
        AInfo.FSchemaNames.store(Same, std::memory_order_release);
        return;
    }
    TNewNames Names = TNameIndex::Make(ANames, *AInfo.FEntry);
    FNames[SchemaNames].Reserve(Names.size());
    Fresh->Older = std::move(AInfo.FAllNames);
    AInfo.FSchemaNames.store(Fresh.get(), std::memory_order_release);
    AInfo.FAllNames = std::move(Fresh);
    FNames[SchemaNames].Add(std::move(Names));
}

} // namespace qz::detail
