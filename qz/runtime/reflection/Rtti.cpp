#include <qz/runtime/reflection/Rtti.h>

#include <qz/runtime/base/NameHash.h>
#include <qz/runtime/objects/TypeNames.h>

namespace qz {

TRttiMethod TRttiType::GetMethod(const TStringArg& AName) const noexcept {
    for (PTypeInfo Type = FHandle; Type != nullptr; Type = Type->BaseType())
        for (const TMethodInfo& Each : Type->Methods)
            if (SameName(Each.Name, AName, TNameCase::Ignored))
                return TRttiMethod(&Each);
    return {};
}

TRttiType TRttiContext::FindType(const TStringArg& AQualifiedName) const {
    return TRttiType(qz::FindType(AQualifiedName));
}

} // namespace qz
