// TObject: the root of the object types.
//
//     class TShape : public TObject {
//         QZ_CLASS(TShape, TObject)
//     public:
//         UnicodeString ToString() const override;
//     };
//     auto Shape = TShape::Create();        // TOwned<TShape>; a counted class gives a TShape* instead
//     Shape->ClassName();                   // "TShape"
//
// An object of an ordinary class is an ordinary C++ object: on the stack, a member, or held by TOwned, which
// runs BeforeDestruction. Objects of the counted families (see Interface.h) are made by Create only and ended
// by Free or by their last reference.
#pragma once

#include <memory>

#include <qz/runtime/objects/Class.h>

// Opens the body of a class: gives it its own identity and Create. Leaves the access at private.
#define QZ_CLASS(AClass, AParent)                                               \
public:                                                                         \
    using ThisClass = AClass;                                                   \
    using Inherited = AParent;                                                  \
    static const qz::TClassRec ClassRec;                                        \
    qz::TClass ClassType() const noexcept override {                            \
        return &ClassRec;                                                       \
    }                                                                           \
    template <class... TArgs>                                                   \
        requires(qz::detail::TMaker<AClass>::MayDiscard())                      \
    static auto Create(TArgs&&... AArgs) {                                      \
        return qz::detail::TMaker<AClass>::Make(std::forward<TArgs>(AArgs)...); \
    }                                                                           \
    template <class... TArgs>                                                   \
        requires(!qz::detail::TMaker<AClass>::MayDiscard())                     \
    [[nodiscard]] static auto Create(TArgs&&... AArgs) {                        \
        return qz::detail::TMaker<AClass>::Make(std::forward<TArgs>(AArgs)...); \
    }                                                                           \
                                                                                \
private:

namespace qz {

namespace detail {
template <class T> struct TMaker;
}

class QZ_API TObject {
public:
    using ThisClass = TObject;
    static const TClassRec ClassRec;

    TObject() noexcept = default;
    virtual ~TObject();

    virtual TClass ClassType() const noexcept { return &ClassRec; }
    std::u16string_view ClassName() const noexcept { return ClassType()->Name(); }
    bool InheritsFrom(TClass AClass) const noexcept { return ClassType()->InheritsFrom(AClass); }
    // The name of the class, unless a class knows better.
    virtual UnicodeString ToString() const;

    // The interface of that identifier as the object's class lists it, not counted; null when it has none.
    // Asked for IInterface it gives the same address at every call.
    void* FindInterface(const TGUID& AIid) noexcept;
    // The same, counted for the caller: AObject receives the interface or null.
    bool GetInterface(const TGUID& AIid, void** AObject);

    // Destroys an object that was made with Create or new: runs BeforeDestruction, then the destructor. When
    // BeforeDestruction raises, the object stays and the exception goes on. Raises EInvalidOperation for an
    // object of the counted families that is being destroyed already.
    void Free();

    // Runs once when the object is complete; run by Create. References to an object of a counted family that
    // come and go in here end nothing.
    virtual void AfterConstruction() {}
    // Runs before the destructor when Free or the last reference destroys the object.
    virtual void BeforeDestruction() {}

protected:
    // For the object families. Create calls FinishCreate after AfterConstruction; an override calls Inherited
    // first.
    virtual void FinishCreate() {}
    // Free calls it first. False if the object is being destroyed already.
    virtual bool BeginDestruction() noexcept { return true; }
    // Free calls it when BeforeDestruction raised: the object lives on.
    virtual void DestructionRefused() noexcept {}

    TObject(const TObject&) noexcept = default;
    TObject& operator=(const TObject&) noexcept = default;

private:
    template <class T> friend struct detail::TMaker;
};

// Frees the object of a pointer, if any. Clears the pointer first, so that it never dangles.
template <class T> void FreeAndNil(T*& AObject) {
    if (T* Old = std::exchange(AObject, nullptr))
        Old->Free();
}

// Deleter for std::unique_ptr that calls Free. BeforeDestruction of such an object must not raise.
struct TFreeObject {
    TFreeObject() noexcept = default;
    template <class T> TFreeObject(std::default_delete<T>) noexcept {} // so that std::make_unique converts
    void operator()(TObject* AObject) const { AObject->Free(); }
};
// Sole ownership of an object of any family, also of a counted one that is never given to an interface.
template <class T> using TOwned = std::unique_ptr<T, TFreeObject>;

// The base of the counted families. Only Create makes their objects, and delete does not compile. A class of
// such a family is abstract until Create completes it, and its memory operators are closed to others.
template <class TBase> class TCreateOnly : public TBase {
public:
    static constexpr bool cCreateOnly = true;

protected:
    using TBase::TBase;
    ~TCreateOnly() override = default;
    static void* operator new(std::size_t ASize) { return ::operator new(ASize); }
    static void operator delete(void* AMemory) noexcept { ::operator delete(AMemory); }

private:
    template <class T> friend struct detail::TMaker;
    virtual void ObjectsOfThisClassAreMadeByCreateOnly() const noexcept = 0;
};

namespace detail {

// Frees an object whose exception can go nowhere.
QZ_API void FreeQuietly(TObject& AObject) noexcept;

template <class T> struct TMaker {
    struct TMade final : T {
        template <class... TArgs> explicit TMade(TArgs&&... AArgs) : T(std::forward<TArgs>(AArgs)...) {}
        void ObjectsOfThisClassAreMadeByCreateOnly() const noexcept override {}
    };

    // A counted class gives a plain pointer, any other a TOwned. An exception of AfterConstruction
    // ends the object and goes on.
    template <class... TArgs> static auto Make(TArgs&&... AArgs) {
        if constexpr (requires { T::cCreateOnly; }) {
            static_assert(std::is_abstract_v<T>, "a counted class must leave the making to Create");
            static_assert(alignof(TMade) <= __STDCPP_DEFAULT_NEW_ALIGNMENT__,
                          "over-aligned objects are not supported");
            return Finish(new TMade(std::forward<TArgs>(AArgs)...));
        } else {
            return TOwned<T>(Finish(new T(std::forward<TArgs>(AArgs)...)));
        }
    }

    // Whether an object whose pointer is discarded may have an owner: a component, or a thread.
    static constexpr bool MayDiscard() noexcept {
        return requires {
            T::cCreateOnly;
        }
        &&!requires {
            T::cMustKeep;
        };
    }

private:
    template <class TNew> static T* Finish(TNew* AObject) {
        try {
            AObject->AfterConstruction();
            static_cast<TObject*>(AObject)->FinishCreate();
        } catch (...) {
            delete AObject;
            throw;
        }
        return AObject;
    }
};

} // namespace detail

} // namespace qz
