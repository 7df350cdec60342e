#include <qz/runtime/components/BoundPath.h>

#include <algorithm>

#include <qz/runtime/base/StringUtils.h>
#include <qz/runtime/components/Bindings.h>

namespace qz::detail {

std::vector<UnicodeString> TBoundPath::Split(std::u16string_view AText) {
    std::vector<UnicodeString> Result;
    for (std::size_t First = 0; First <= AText.size();) {
        const std::size_t End = std::min(AText.find(u'.', First), AText.size());
        const UnicodeString Part = Trim(AText.substr(First, End - First));
        if (!IsValidIdent(Part))
            throw EEvaluatorError(u"The expression '%s' has no name where it says '%s'", {AText, Part});
        Result.push_back(Part);
        First = End + 1;
    }
    return Result;
}

const TPropInfo& TBoundPath::PropOf(const TObject& AObject, std::size_t APart) const {
    const TPropInfo* Prop = GetPropInfo(&AObject.ClassType()->Info, FParts[APart]);
    if (Prop == nullptr)
        throw EEvaluatorError(u"In the expression '%s' the name '%s' is no property of the class %s",
                              {FText, FParts[APart], AObject.ClassName()});
    return *Prop;
}

TObject* TBoundPath::Next(const TObject& AObject, std::size_t APart) const {
    const TPropInfo& Prop = PropOf(AObject, APart);
    if (Prop.PropType()->Kind != tkClass || Prop.Get == nullptr)
        throw EEvaluatorError(u"In the expression '%s' the property '%s' leads to no object",
                              {FText, FParts[APart]});
    TBoundValue Value;
    Value.Read(AObject, Prop);
    return Value.AsObject();
}

// Hands each object with the number of its part to AVisit, until that gives false. False when the way is
// broken.
template <class TVisit> bool TBoundPath::Walk(TVisit AVisit) const {
    TObject* Object = FRoot;
    for (std::size_t Part = 0; Object != nullptr; ++Part) {
        if (!AVisit(*Object, Part) || Part + 1 >= FParts.size())
            return true;
        Object = Next(*Object, Part);
    }
    return false;
}

void TBoundPath::Check(bool AToWrite) const {
    if (FParts.empty() && AToWrite)
        throw EEvaluatorError(u"The expression '%s' names no property to write to", {FText});
    Walk([&](const TObject& AObject, std::size_t APart) {
        if (APart + 1 != FParts.size())
            return true;
        const TPropInfo& Prop = PropOf(AObject, APart);
        if (AToWrite ? Prop.Set == nullptr : Prop.Get == nullptr)
            throw EEvaluatorError(AToWrite ? u"In the expression '%s' the property '%s' cannot be written"
                                           : u"In the expression '%s' the property '%s' cannot be read",
                                  {FText, FParts[APart]});
        return true;
    });
}

std::vector<TObject*> TBoundPath::Objects() const {
    std::vector<TObject*> Result;
    Walk([&](TObject& AObject, std::size_t) {
        Result.push_back(&AObject);
        return true;
    });
    return Result;
}

bool TBoundPath::DependsOn(const TObject* AObject, std::u16string_view AProperty) const {
    bool Found = false;
    Walk([&](const TObject& AEach, std::size_t APart) {
        Found =
            &AEach == AObject && (AProperty.empty() || FParts.empty() || SameText(FParts[APart], AProperty));
        return !Found;
    });
    return Found;
}

bool TBoundPath::Read(TBoundValue& AValue) const {
    return Walk([&](TObject& AObject, std::size_t APart) {
        if (FParts.empty())
            AValue.SetObject(&AObject, &AObject.ClassType()->Info);
        else if (APart + 1 == FParts.size())
            AValue.Read(AObject, PropOf(AObject, APart));
        return true;
    });
}

TBoundPath::TTarget TBoundPath::Write(const TBoundValue& AValue) const {
    TTarget Result{};
    Walk([&](TObject& AObject, std::size_t APart) {
        if (APart + 1 != FParts.size())
            return true;
        const TPropInfo& Prop = PropOf(AObject, APart);
        TBoundValue New;
        New.Assign(AValue, Prop.PropType());
        TBoundValue Current;
        if (Prop.Get != nullptr)
            Current.Read(AObject, Prop);
        if (!Current.SameAs(New)) {
            Prop.Set(AObject, New.Data());
            Result = {&AObject, &Prop};
        }
        return false;
    });
    return Result;
}

} // namespace qz::detail
