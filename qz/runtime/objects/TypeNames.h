// The described types of the program by their qualified names.
//
//     QZ_REGISTER_TYPES(TColor, TPoint, TShape);      // in a source file, at namespace scope
//     PTypeInfo Type = FindType(u"Drawing.TColor");    // names in either case of letters
//
// All functions may be called from any thread, also before main. A search takes no lock. A library with
// registered types that a search can give is never unloaded.
#pragma once

#include <array>
#include <span>

#include <qz/runtime/base/NameHash.h>
#include <qz/runtime/objects/TypeInfo.h>

namespace qz {

// Makes a type known by its qualified name; of two types of one name the last counts. A type that is not
// public is ignored, for it has no such name. The description lives as long as the program.
QZ_API void RegisterType(PTypeInfo AType);
// The type of that qualified name, as "System.Integer"; null when none is registered.
QZ_API PTypeInfo FindType(std::u16string_view AQualifiedName);

namespace detail {

// A name and its HashName without case.
struct THashedName {
    explicit THashedName(std::u16string_view AName) noexcept
        : Name(AName),
          Hash(HashNameOf<TNameCase::Ignored>(AName)) {}
    std::u16string_view Name;
    std::uint64_t Hash;
};
// The type whose name is AUnit, a point, AFirst and ARest; without the point if AUnit is empty. There is no
// point in ARest.
QZ_API PTypeInfo FindType(const THashedName& AUnit, char16_t AFirst, const THashedName& ARest);

// The types of one QZ_REGISTER_TYPES. They enter the table at the first search after they were linked.
class QZ_API TTypeModule {
public:
    TTypeModule(const TTypeModule&) = delete;
    TTypeModule& operator=(const TTypeModule&) = delete;

protected:
    explicit TTypeModule(std::span<const PTypeInfo> ATypes);
    ~TTypeModule();

private:
    friend class TTypeNames;
    std::span<const PTypeInfo> FTypes;
    TTypeModule* FNext = nullptr; // linked after this one
};

template <class... T> struct TTypeModuleTypes {
    std::array<PTypeInfo, sizeof...(T)> Types{TypeInfo<T>()...};
};
template <class... T> class TTypeModuleOf : TTypeModuleTypes<T...>, TTypeModule {
public:
    TTypeModuleOf() : TTypeModule(this->Types) {}
};

} // namespace detail

} // namespace qz

// Registers described types when the program or the library that holds the source starts. One for a source.
#define QZ_REGISTER_TYPES(...) [[maybe_unused]] static qz::detail::TTypeModuleOf<__VA_ARGS__> GRegisteredTypes
