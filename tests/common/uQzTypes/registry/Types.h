// Types that the tests of the registry describe: an enumeration, a record, classes with parents and lists.
#pragma once

#include <qz/common/uQzTypes/registry/QzTypes.h>
#include <qz/runtime/objects/Describe.h>
#include <qz/runtime/objects/EnumItems.h>
#include <qz/runtime/objects/TypeNames.h>

namespace qz {

enum class TTaste : std::uint8_t { tsSweet, tsSour };
struct TFruit {
    int Weight = 0;
};
class TBasket : public TObject {
    QZ_CLASS(TBasket, TObject)
};
class TFruits : public TBasket {
    QZ_CLASS(TFruits, TBasket)
};
// Lists: of records, of itself, and of each other.
class TFruitList : public TObject {
    QZ_CLASS(TFruitList, TObject)
public:
    TFruit First() const;
};
class TNodeList : public TObject {
    QZ_CLASS(TNodeList, TObject)
public:
    TNodeList* First() const;
};
class THiddenList : public TObject {
    QZ_CLASS(THiddenList, TObject)
public:
    int First() const;
};
using TFruitArray = TDynArray<TFruit>;
using TIntPair = std::array<int, 2>;

} // namespace qz

QZ_TYPE_INFO(qz::TTaste);
QZ_TYPE_INFO(qz::TFruit);
QZ_TYPE_INFO(qz::TFruitArray);
QZ_TYPE_INFO(qz::TIntPair);
