#include <qz/runtime/lists/ListTypes.h>

#include <qz/runtime/objects/Exceptions.h>

namespace qz::detail {

void RaiseOutOfRange(std::int64_t AValue, std::int64_t ACount) {
    throw EArgumentOutOfRangeException(u"%s: %d of %d", {SArgumentOutOfRange, AValue, ACount});
}

void RaiseListIndex(int AIndex) {
    throw EListError(SListIndexError, {AIndex});
}

void RaiseList(std::u16string_view AText) {
    throw EListError(AText);
}

} // namespace qz::detail
