#include <qz/runtime/objects/TypeInfo.h>

#include <cstring>

#include <qz/runtime/base/StringUtils.h>

namespace qz {

UnicodeString TTypeInfo::QualifiedName() const {
    if (!IsPublic || Unit.empty())
        return Name;
    return UnicodeString(Unit) + u'.' + Name;
}

namespace {

// What both names must have in common, before they are compared letter by letter.
bool MayBeSame(std::u16string_view ALeft, std::u16string_view ARight) noexcept {
    constexpr unsigned cCase = u'a' ^ u'A';
    return ALeft.size() == ARight.size() &&
        (ALeft.empty() || ((unsigned{ALeft.back()} ^ ARight.back()) & ~cCase) == 0);
}

template <class T> T Load(const void* ASource) noexcept {
    T Result;
    std::memcpy(&Result, ASource, sizeof Result);
    return Result;
}

} // namespace

const TPropInfo* GetPropInfo(PTypeInfo AType, std::u16string_view AName) noexcept {
    for (; AType != nullptr; AType = AType->BaseType())
        for (const TPropInfo& Prop : AType->Properties)
            if (MayBeSame(Prop.Name, AName) && SameText(Prop.Name, AName))
                return &Prop;
    return nullptr;
}

std::int64_t ReadOrdinal(PTypeInfo AType, const void* ASource) noexcept {
    const bool IsSigned = AType->IsSigned;
    switch (AType->Ops->Size) {
    case 1: return IsSigned ? Load<std::int8_t>(ASource) : Load<std::uint8_t>(ASource);
    case 2: return IsSigned ? Load<std::int16_t>(ASource) : Load<std::uint16_t>(ASource);
    case 4: return IsSigned ? Load<std::int32_t>(ASource) : std::int64_t{Load<std::uint32_t>(ASource)};
    case 8: return Load<std::int64_t>(ASource);
    default: break;
    }
    std::int64_t Bits = 0; // a set of an odd size
    std::memcpy(&Bits, ASource, AType->Ops->Size);
    return Bits;
}

void WriteOrdinal(PTypeInfo AType, void* ATarget, std::int64_t AValue) noexcept {
    std::memcpy(ATarget, &AValue, AType->Ops->Size);
}

} // namespace qz
