#include <qz/runtime/base/detail/UtfPaths.h>

#include <qz/platform/Machine.h>

namespace qz::detail {
namespace {

const TUtfPath* const cPaths[] = {
    &cUtfPortablePath,
#ifdef __x86_64__
    &cUtfSse4Path,
    &cUtfAvx2Path,
#endif
};

constinit platform::TChosenPath<TUtfPath> Best(cUtfPortablePath);

[[maybe_unused]] const bool cIsChosen = Best.Choose(*UtfPaths().back());

} // namespace

std::span<const TUtfPath* const> UtfPaths() noexcept {
    return {cPaths, static_cast<std::size_t>(platform::BestMachine()) + 1};
}

const TUtfPath& BestUtfPath() noexcept {
    return *Best;
}

} // namespace qz::detail
