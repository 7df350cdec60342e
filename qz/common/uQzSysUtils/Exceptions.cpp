#include <qz/common/uQzSysUtils/Exceptions.h>

#include <algorithm>
#include <array>
#include <vector>

#include <qz/platform/Debugger.h>
#include <qz/runtime/base/StringUtils.h>
#include <qz/runtime/objects/DescribeException.h>
#include <qz/runtime/objects/TypeNames.h>
#include <qz/runtime/text/Format.h>

namespace qz {

QZ_REGISTER_TYPES(EQzException, EQzAbort);

constinit const TClassRec EQzException::ClassRec =
    DescribeException<EQzException>(u"EQzException", u"uQzSysUtils");
constinit const TClassRec EQzAbort::ClassRec = DescribeException<EQzAbort>(u"EQzAbort", u"uQzSysUtils");

namespace {

// One registry entry.
class TExceptionClass : public TObject {
    QZ_CLASS(TExceptionClass, TObject)

public:
    TExceptionClass(const UnicodeString& AErrorGroup, ExceptionClass AClass, std::int32_t AErrorCode)
        : FErrorGroup(AErrorGroup),
          FExceptionClass(AClass),
          FErrorCode(AErrorCode) {}

    bool Matches(std::u16string_view AErrorGroup, std::int32_t AErrorCode) const noexcept {
        return FErrorCode == AErrorCode && (AErrorGroup.empty() || FErrorGroup == AErrorGroup);
    }
    ExceptionClass Class() const noexcept { return FExceptionClass; }
    std::int32_t ErrorCode() const noexcept { return FErrorCode; }

private:
    UnicodeString FErrorGroup;
    ExceptionClass FExceptionClass;
    std::int32_t FErrorCode;
};

constinit const TClassRec TExceptionClass::ClassRec =
    DescribeClass<TExceptionClass>(u"TExceptionClass", {.Unit = u"uQzSysUtils", .IsPublic = false});

// The entries in the order of registration; absent until the first one.
std::unique_ptr<std::vector<TOwned<TExceptionClass>>> GExceptionClasses;

constexpr std::array<std::u16string_view, 3> cIdeWindows = {u"TAlignPalette", u"TPropertyInspector",
                                                            u"TAppBuilder"};
UnicodeString GIdeTitle;

void Register(const UnicodeString& AErrorGroup, std::int32_t AErrorCode, ExceptionClass AClass) {
    Assert(static_cast<bool>(AClass));
    if (!GExceptionClasses)
        GExceptionClasses = std::make_unique<std::vector<TOwned<TExceptionClass>>>();
    const ExceptionClass Holder = QzGetExceptionClass(AErrorGroup, AErrorCode);
    if (!Holder)
        GExceptionClasses->push_back(TExceptionClass::Create(AErrorGroup, AClass, AErrorCode));
    else if (Holder != AClass && !QzIsIdeRunning())
        detail::RaiseAssertion(Format(SErrorCodeInUse, {AErrorCode, Holder->Name()}));
}

} // namespace

void QzRegisterExceptionClass(const UnicodeString& AErrorGroup, std::int32_t AErrorCode,
                              EQzExceptionClass AClass) {
    Register(AErrorGroup, AErrorCode, AClass);
}

void QzRegisterExceptionClass(const UnicodeString& AErrorGroup, std::int32_t AErrorCode,
                              EQzAbortClass AClass) {
    Register(AErrorGroup, AErrorCode, AClass);
}

ExceptionClass QzGetExceptionClass(const TStringArg& AErrorGroup, std::int32_t AErrorCode) noexcept {
    if (GExceptionClasses)
        for (const auto& Entry : *GExceptionClasses)
            if (Entry->Matches(AErrorGroup, AErrorCode))
                return Entry->Class();
    return nullptr;
}

ExceptionClass QzGetExceptionClassByName(const TStringArg& AClassName, std::int32_t* AErrorCode) noexcept {
    if (AErrorCode != nullptr)
        *AErrorCode = 0;
    if (!GExceptionClasses)
        return nullptr;
    for (const auto& Entry : *GExceptionClasses) {
        if (!SameText(Entry->Class()->Name(), AClassName))
            continue;
        if (AErrorCode != nullptr)
            *AErrorCode = Entry->ErrorCode();
        return Entry->Class();
    }
    return nullptr;
}

bool QzIsIdeRunning() {
    if (!GIdeTitle.empty() && platform::HasTopLevelWindow(u"TApplication", GIdeTitle))
        return true;
    return std::any_of(cIdeWindows.begin(), cIdeWindows.end(),
                       [](std::u16string_view AClass) { return platform::HasTopLevelWindow(AClass, {}); });
}

void QzSetIdeTitle(const UnicodeString& ATitle) {
    GIdeTitle = ATitle;
}

bool QzIsDebuggerPresent() noexcept {
    return platform::IsDebuggerPresent();
}

} // namespace qz
