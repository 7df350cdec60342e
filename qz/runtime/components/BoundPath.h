// TBoundPath: the way from an object over its published properties to a value. Internal: Bindings.h and
// LinkControlToProperty.h are the ways to it.
#pragma once

#include <vector>

#include <qz/runtime/components/BoundValue.h>
#include <qz/runtime/objects/Object.h>

namespace qz::detail {

class TBoundPath {
public:
    // ARoot is not owned. AParts names the properties, of which all but the last hold objects; AText is the
    // whole expression, for messages.
    TBoundPath(TObject* ARoot, std::vector<UnicodeString> AParts, UnicodeString AText)
        : FRoot(ARoot),
          FParts(std::move(AParts)),
          FText(std::move(AText)) {}
    // The names between the points of AText. Raises EEvaluatorError when one is no identifier.
    static std::vector<UnicodeString> Split(std::u16string_view AText);

    const UnicodeString& Text() const noexcept { return FText; }
    TObject* Root() const noexcept { return FRoot; }
    // Raises EEvaluatorError when a part is unknown, leads to no object or is not readable; for AToWrite the
    // last one has to be writable instead. Stops at an empty object property.
    void Check(bool AToWrite) const;
    // The objects on the way, without empty ones.
    std::vector<TObject*> Objects() const;
    // True when AObject lies on the way and its property of that name, or of any for an empty one, leads on.
    bool DependsOn(const TObject* AObject, std::u16string_view AProperty) const;

    // False when an object property on the way is empty.
    bool Read(TBoundValue& AValue) const;
    struct TTarget {
        TObject* Object;
        const TPropInfo* Prop;
    };
    // Converts AValue and writes it, unless the property has that value already or the way is broken. Gives
    // what was written to, or nulls.
    TTarget Write(const TBoundValue& AValue) const;

private:
    const TPropInfo& PropOf(const TObject& AObject, std::size_t APart) const;
    TObject* Next(const TObject& AObject, std::size_t APart) const;
    template <class TVisit> bool Walk(TVisit AVisit) const;

    TObject* FRoot;
    std::vector<UnicodeString> FParts;
    UnicodeString FText;
};

} // namespace qz::detail
