#include <qz/platform/linux/LocaleName.h>

#include <memory>
#include <optional>

#include <unicode/ures.h>

#include <qz/platform/linux/NativeEnvironment.h>

namespace qz::platform::detail {

namespace {

bool IsKnown(const std::string& AName) {
    UErrorCode Status = U_ZERO_ERROR;
    const std::unique_ptr<UResourceBundle, decltype(&ures_close)> Bundle(
        ures_open(nullptr, AName.c_str(), &Status), ures_close);
    return U_SUCCESS(Status) && Status != U_USING_DEFAULT_WARNING;
}

} // namespace

std::string PosixLocaleName(const char* ACategory) {
    for (const char* Variable : {"LC_ALL", ACategory, "LANG"}) {
        const std::optional<std::string> Value = NativeEnvironment(Variable);
        if (Value && !Value->empty())
            return *Value;
    }
    return "C";
}

std::string IcuLocaleName(std::string_view APosixName) {
    const std::size_t ModifierAt = APosixName.find('@');
    const std::string_view Modifier =
        ModifierAt == std::string_view::npos ? std::string_view() : APosixName.substr(ModifierAt + 1);
    const std::string_view Plain = APosixName.substr(0, APosixName.find_first_of(".@"));
    if (Plain.empty() || Plain == "C" || Plain == "POSIX")
        return {};
    std::string Result(Plain);
    const std::size_t Language = std::min(Plain.find('_'), Plain.size());
    if (Modifier == "latin")
        Result.insert(Language, "_Latn");
    else if (Modifier == "cyrillic")
        Result.insert(Language, "_Cyrl");
    return IsKnown(Result) ? Result : std::string();
}

} // namespace qz::platform::detail
