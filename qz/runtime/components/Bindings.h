// TBindings: properties that follow properties of other objects.
//
//     TBindings::CreateManagedBinding(
//         {TBindings::CreateAssociationScope({Associate(Model, u"src")})}, u"src.Person.Name",
//         {TBindings::CreateAssociationScope({Associate(Edit, u"dst")})}, u"dst.Text", {TBindings::coEvaluate});
//     Model->SetName(u"Zoe");
//     TBindings::Notify(Model, u"Name");                 // Edit has the name now
//
// An expression is the name of an object of its scope, then published properties with points between; names
// in either case of letters. Values are converted as TBoundValue says. Notify reports changes to a binding: a
// setter calls it for its property.
//
// A bound component that ends takes its bindings out of work; any other bound object must outlive them.
// Bindings belong to the thread of their objects; different threads may have bindings of their own at the
// same time.
#pragma once

#include <initializer_list>
#include <memory>
#include <vector>

#include <qz/runtime/base/Set.h>
#include <qz/runtime/base/StringArg.h>
#include <qz/runtime/components/BoundPath.h>
#include <qz/runtime/objects/Exceptions.h>

namespace qz {

// An expression with an unknown name, or one that cannot be read or written.
QZ_PLAIN_EXCEPTION(EEvaluatorError, Exception);

// An object under the name that it has in an expression. The object is not owned.
struct TBindingAssociation {
    TObject* Object;
    UnicodeString Name;
};

inline TBindingAssociation Associate(TObject* AObject, const UnicodeString& AName) {
    return {AObject, AName};
}

// The names that an expression may begin with. Of equal names the first counts.
class TBindingScope {
public:
    TBindingScope(std::initializer_list<TBindingAssociation> AItems) : FItems(AItems) {}
    // Null when no object has that name.
    QZ_API TObject* Find(std::u16string_view AName) const noexcept;

private:
    std::vector<TBindingAssociation> FItems;
};

class TBindingExpression;

class QZ_API TBindings {
public:
    enum class TCreateOption : std::uint8_t {
        coNotifyOutput, // notifies bindings that depend on the output after writing it
        coEvaluate      // the output gets its value at once
    };
    using enum TCreateOption;
    using TCreateOptions = TSet<TCreateOption, 8>;

    static TBindingScope CreateAssociationScope(std::initializer_list<TBindingAssociation> AItems) {
        return TBindingScope(AItems);
    }
    // A binding that lives until RemoveBinding. Raises EEvaluatorError, without making one, when an
    // expression names an unknown object or property, or one that cannot be read or written; after an empty
    // object property nothing is looked at. With coEvaluate exceptions of the first evaluation go to the
    // caller in the same way.
    static TBindingExpression* CreateManagedBinding(std::initializer_list<TBindingScope> AInputScopes,
                                                    const TStringArg& AInputExpression,
                                                    std::initializer_list<TBindingScope> AOutputScopes,
                                                    const TStringArg& AOutputExpression,
                                                    TCreateOptions AOptions = {});
    // Ends a binding, also during its evaluation. What is no binding (any more) is ignored.
    static void RemoveBinding(TBindingExpression* ABinding);
    // Evaluates the bindings that read this property of the object, or any property for an empty name, in the
    // order in which they were made. The first exception goes to the caller.
    static void Notify(TObject* AObject, const TStringArg& APropertyName);
};

// One binding; created and destroyed by TBindings.
class QZ_API TBindingExpression : public TObject, public std::enable_shared_from_this<TBindingExpression> {
    QZ_CLASS(TBindingExpression, TObject)

public:
    const UnicodeString& InputExpression() const noexcept { return FInput.Text(); }
    const UnicodeString& OutputExpression() const noexcept { return FOutput.Text(); }
    // False once a bound component was destroyed or the binding was removed.
    bool IsActive() const noexcept { return FActive; }

    // Writes the value of the input expression to the output, unless it is there already. Does nothing while
    // an object property on either way is empty, and while this very binding is being evaluated, so that
    // bindings that feed each other come to rest. Exceptions of getters, setters and the conversion reach the
    // caller.
    void Evaluate();

    class TKey {
        friend class TBindings;
        TKey() = default;
    };
    TBindingExpression(TKey, detail::TBoundPath AInput, detail::TBoundPath AOutput,
                       TBindings::TCreateOptions AOptions);
    ~TBindingExpression() override;

private:
    friend class TBindings;
    class TWatch;
    void WatchObjects();
    void Deactivate() noexcept;

    detail::TBoundPath FInput;
    detail::TBoundPath FOutput;
    TBindings::TCreateOptions FOptions;
    TOwned<TObject> FWatch;
    std::vector<TObject*> FWatched; // by address only
    bool FActive = true;
    bool FEvaluating = false;
};

} // namespace qz
