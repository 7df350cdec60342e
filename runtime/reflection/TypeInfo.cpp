#include "runtime/reflection/TypeInfo.h"

#include <cstring>

#include "runtime/text/StringUtils.h"

namespace qz {

UnicodeString TTypeInfo::QualifiedName() const {
    if (!IsPublic || Unit.empty())
        return Name;
    return UnicodeString(Unit) + u'.' + Name;
}

const TPropInfo* GetPropInfo(PTypeInfo AType, std::u16string_view AName) noexcept {
    for (; AType != nullptr; AType = AType->BaseType())
        for (const TPropInfo& Prop : AType->Properties)
            if (SameText(Prop.Name, AName))
                return &Prop;
    return nullptr;
}

std::int64_t ReadOrdinal(PTypeInfo AType, const void* ASource) noexcept {
    const std::size_t Size = AType->Ops->Size;
    std::uint64_t Bits = 0;
    std::memcpy(&Bits, ASource, Size);
    if (AType->IsSigned && Size < 8) {
        const unsigned Shift = 64 - 8 * static_cast<unsigned>(Size);
        return static_cast<std::int64_t>(Bits << Shift) >> Shift;
    }
    return static_cast<std::int64_t>(Bits);
}

void WriteOrdinal(PTypeInfo AType, void* ATarget, std::int64_t AValue) noexcept {
    std::memcpy(ATarget, &AValue, AType->Ops->Size);
}

} // namespace qz
