// The way into a TValue for the functions beside it. Internal.
#pragma once

#include <qz/runtime/values/Value.h>

namespace qz::detail {

struct TValueAccess {
    // A value of that type, which AFill makes in raw storage; bytes that it does not write are 0 in a small
    // one. When AFill raises, nothing is left.
    template <class TFill> static TValue Make(PTypeInfo AType, const TFill& AFill) {
        TValue Result;
        if (AType->Ops->IsSmall) {
            AFill(static_cast<void*>(Result.FRoom));
        } else {
            TValueBlock::TOwner Owner(TValueBlock::New(AType->Ops->Size, AType->Ops->Align));
            AFill(Owner->Value());
            Result.KeepBlock(Owner.release());
        }
        Result.FType = AType;
        return Result;
    }
    // The value for writing; it is there.
    static void* Data(TValue& AValue) { return AValue.OwnData(); }
    // The same value under another type whose values are handled in the same way.
    static TValue Relabel(TValue AValue, PTypeInfo AType) noexcept {
        AValue.FType = AType;
        return AValue;
    }
};

} // namespace qz::detail
