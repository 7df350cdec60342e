#include <qz/platform/Accounts.h>

#include <cstddef>
#include <memory>
#include <optional>

#include <windows.h>

#include <qz/platform/windows/WideText.h>

namespace qz::platform {

namespace {

constexpr DWORD cLongestName = 512;
constexpr DWORD cLongestAccount = 200;

// The token of the process, for queries.
class TToken {
public:
    TToken() noexcept {
        if (OpenProcessToken(GetCurrentProcess(), TOKEN_QUERY, &FHandle) == 0)
            FHandle = nullptr;
    }
    TToken(const TToken&) = delete;
    TToken& operator=(const TToken&) = delete;
    ~TToken() {
        if (FHandle != nullptr)
            CloseHandle(FHandle);
    }

    bool IsOpen() const noexcept { return FHandle != nullptr; }
    HANDLE Handle() const noexcept { return FHandle; }

    std::optional<DWORD> Number(TOKEN_INFORMATION_CLASS AKind) const noexcept {
        DWORD Value = 0;
        DWORD Size = 0;
        if (GetTokenInformation(FHandle, AKind, &Value, sizeof Value, &Size) == 0)
            return std::nullopt;
        return Value;
    }

private:
    HANDLE FHandle = nullptr;
};

} // namespace

std::u16string ComputerName() {
    char16_t Name[cLongestName];
    DWORD Length = cLongestName;
    if (GetComputerNameW(detail::Wide(Name), &Length) == 0)
        return {};
    return {Name, Length};
}

std::u16string UserName() {
    char16_t Name[cLongestName];
    DWORD Length = cLongestName;
    if (GetUserNameW(detail::Wide(Name), &Length) == 0)
        return {};
    return std::u16string(detail::FromWide(detail::Wide(Name)));
}

TAccountName AccountName() {
    const TToken Token;
    alignas(TOKEN_USER) std::byte User[sizeof(TOKEN_USER) + SECURITY_MAX_SID_SIZE];
    DWORD Size = 0;
    if (!Token.IsOpen() || GetTokenInformation(Token.Handle(), TokenUser, User, sizeof User, &Size) == 0)
        return {};
    char16_t Name[cLongestAccount];
    char16_t Domain[cLongestAccount];
    DWORD NameLength = cLongestAccount;
    DWORD DomainLength = cLongestAccount;
    SID_NAME_USE Kind;
    if (LookupAccountSidW(nullptr, reinterpret_cast<const TOKEN_USER*>(User)->User.Sid, detail::Wide(Name),
                          &NameLength, detail::Wide(Domain), &DomainLength, &Kind) == 0)
        return {};
    return {std::u16string(detail::FromWide(detail::Wide(Name))),
            std::u16string(detail::FromWide(detail::Wide(Domain)))};
}

TElevation Elevation() noexcept {
    const TToken Token;
    if (!Token.IsOpen())
        return TElevation::Unknown;
    const std::optional<DWORD> Kind = Token.Number(TokenElevationType);
    if (Kind == TokenElevationTypeFull)
        return TElevation::Full;
    if (Kind == TokenElevationTypeLimited)
        return TElevation::Limited;
    const std::optional<DWORD> IsElevated = Token.Number(TokenElevation);
    if (!IsElevated)
        return TElevation::Unknown;
    return *IsElevated != 0 ? TElevation::Full : TElevation::Limited;
}

} // namespace qz::platform
