#include <qz/common/uQzTypes/registry/QzTypeInfo.h>

#include <qz/common/uQzTypes/registry/detail/TypeStore.h>
#include <qz/runtime/objects/Describe.h>

namespace qz {

constinit const TClassRec TQzTypeInfo::ClassRec =
    DescribeClass<TQzTypeInfo>(u"TQzTypeInfo", {.Unit = u"uQzTypes"});

TQzTypeInfo* TQzTypeInfo::ArrElmTypeInfo() const {
    TQzTypeInfo* Result = FArrElmTypeInfo.load(std::memory_order_acquire);
    if (Result == nullptr && FElementHandle != nullptr) {
        Result = detail::TTypeStore::Instance().InfoOf(FElementHandle);
        FArrElmTypeInfo.store(Result, std::memory_order_release);
    }
    return Result;
}

UnicodeString TQzTypeInfo::SchemaName(const TStringArg& APrefix) const {
    if (FIsVirtual && FTypeRec->Info != this)
        return FTypeRec->Info->SchemaName(APrefix);
    const detail::TSchemaNames& Current = Names();
    if (Current.IsCustom || APrefix.View().empty() || !FIsXMLSchemaSimpleType)
        return Current.Names.front();
    UnicodeString Result(APrefix.View());
    Result += u':';
    return Result += Current.Names.front();
}

void TQzTypeInfo::SetDefaultSchemaName(const TStringArg& AName) {
    const UnicodeString Name = AName.ToString();
    detail::TTypeStore::Instance().PutNamesFirst(*this, {&Name, 1}, TNameCase::Counts);
}

// NOLINTNEXTLINE(readability-make-member-function-const): it adds to the registry
TQzTypeInfo* TQzTypeInfo::VirtualType(TQzSchemaDataType ASchemaType) {
    return detail::TTypeStore::Instance().VirtualType(*this, ASchemaType);
}

} // namespace qz
