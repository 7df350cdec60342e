#include <qz/common/uQzLogger/DataRec.h>

#include <qz/common/uQzLogger/detail/LogThread.h>
#include <qz/common/uQzTypes/VarTolerant.h>
#include <qz/runtime/components/Component.h>
#include <qz/runtime/reflection/Properties.h>
#include <qz/runtime/values/Value.h>

namespace qz {
namespace {

constexpr TTextConstant cLineEnd = u"\r\n";

// An object that is being dumped, and the object that has it as a property.
struct TOpenObject {
    const TObject* Object;
    const TOpenObject* Outer;
};

void Dump(UnicodeString& AText, const TObject& AObject, const UnicodeString& AIndent,
          const TOpenObject* AOuter);

void DumpInner(UnicodeString& AText, const TObject* AInner, const UnicodeString& AIndent,
               const TOpenObject& AOpen) {
    if (AInner == nullptr || !AInner->InheritsFrom(ClassOf<TPersistent>()))
        return;
    for (const TOpenObject* Each = &AOpen; Each != nullptr; Each = Each->Outer) {
        if (Each->Object == AInner)
            return;
    }
    Dump(AText, *AInner, AIndent, &AOpen);
}

void DumpProperty(UnicodeString& AText, const TPropInfo& AProp, const UnicodeString& AIndent,
                  const TOpenObject& AOpen) {
    constexpr TSet<TTypeKind> cShown = {tkInteger, tkChar,    tkFloat,   tkString,  tkSet,
                                        tkWChar,   tkLString, tkWString, tkVariant, tkEnumeration};
    const TTypeKind Kind = AProp.PropType()->Kind;
    if (cShown.Contains(Kind)) {
        const Variant Value = GetPropValue(*AOpen.Object, AProp, Kind == tkEnumeration);
        AText += AIndent + AProp.Name + u" = " + QzVarToStr(Value, {}, true) + cLineEnd;
    } else if (Kind == tkClass) {
        DumpInner(AText, GetObjectProp(*AOpen.Object, AProp), AIndent, AOpen);
    }
}

void DumpFailure(UnicodeString& AText, const TPropInfo& AProp, const UnicodeString& AIndent,
                 std::u16string_view AClass, const UnicodeString& AMessage) {
    AText += AIndent + u"Exception " + AClass + u"(" + AMessage +
        u") was raised while trying to read property: " + AProp.Name + cLineEnd;
}

void Dump(UnicodeString& AText, const TObject& AObject, const UnicodeString& AIndent,
          const TOpenObject* AOuter) {
    if (const auto* Component = dynamic_cast<const TComponent*>(&AObject))
        AText += AIndent + u"object " + Component->Name() + u": " + AObject.ClassName() + cLineEnd;
    else
        AText += AIndent + u"object : " + AObject.ClassName() + cLineEnd;
    const TOpenObject Open{&AObject, AOuter};
    const UnicodeString Indent = AIndent + u"  ";
    for (const TPropInfo& Prop : GetPropInfos(AObject.ClassType())) {
        if (Prop.Get == nullptr || Prop.Set == nullptr || Prop.IsMethod)
            continue;
        try {
            DumpProperty(AText, Prop, Indent, Open);
        } catch (const Exception& Error) {
            DumpFailure(AText, Prop, Indent, Error.ClassName(), Error.Message());
        } catch (const std::exception& Error) {
            DumpFailure(AText, Prop, Indent, u"std::exception", Error.what());
        } catch (...) {
            DumpFailure(AText, Prop, Indent, u"Unknown", {});
        }
    }
}

} // namespace

UnicodeString QzDataRecToString(PQzDataRec AValue) {
    const detail::TLogThread& Thread = detail::ThisLogThread();
    if (AValue == Thread.DumpedValue)
        return *Thread.Dump;
    if (AValue->Kind() == tkClass) {
        if (const TObject* Object = AValue->AsObject()) {
            UnicodeString Result;
            Dump(Result, *Object, {}, nullptr);
            return Result;
        }
    }
    return AValue->ToString();
}

} // namespace qz
