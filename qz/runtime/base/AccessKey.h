// TAccessKey: an argument that one class alone can make, for an operation that only this class may call.
//
//     class TRegistry {
//     public:
//         void Forget(TItem* AItem, TAccessKey<TItem>);      // TItem calls it as Forget(this, {})
//     };
#pragma once

namespace qz {

template <class T> class TAccessKey {
    friend T;
    TAccessKey() noexcept = default;
};

} // namespace qz
