#include <qz/runtime/lists/ListTypes.h>

#include <qz/runtime/objects/Exceptions.h>

namespace qz::detail {

void RaiseOutOfRange() {
    throw EArgumentOutOfRangeException(SArgumentOutOfRange);
}

void RaiseListIndex(int AIndex) {
    throw EListError(SListIndexError, {AIndex});
}

void RaiseList(std::u16string_view AText) {
    throw EListError(AText);
}

} // namespace qz::detail
