#include <qz/platform/EventLog.h>

#include <algorithm>
#include <exception>
#include <string>

#include <windows.h>

#include <qz/platform/windows/WideText.h>

namespace qz::platform {

namespace {

constexpr std::size_t cLongestText = 31'000; // units of one event; the system takes 31,839
constexpr DWORD cAllTypes = EVENTLOG_ERROR_TYPE | EVENTLOG_WARNING_TYPE | EVENTLOG_INFORMATION_TYPE;

class TKey {
public:
    TKey() noexcept = default;
    TKey(const TKey&) = delete;
    TKey& operator=(const TKey&) = delete;
    ~TKey() {
        if (Handle != nullptr)
            RegCloseKey(Handle);
    }

    HKEY Handle = nullptr;
};

void SetValues(HKEY AKey, const std::u16string& AProgram) noexcept {
    const auto Size = static_cast<DWORD>((AProgram.size() + 1) * sizeof(char16_t));
    RegSetValueExW(AKey, L"EventMessageFile", 0, REG_SZ, reinterpret_cast<const BYTE*>(AProgram.c_str()),
                   Size);
    RegSetValueExW(AKey, L"TypesSupported", 0, REG_DWORD, reinterpret_cast<const BYTE*>(&cAllTypes),
                   sizeof cAllTypes);
}

// The start of the text that fits into one event, no pair torn.
std::u16string_view PieceOf(std::u16string_view AText) noexcept {
    const std::u16string_view Piece = AText.substr(0, cLongestText);
    const bool Tears = Piece.size() < AText.size() && (Piece.back() & 0xFC00) == 0xD800;
    return Tears ? Piece.substr(0, Piece.size() - 1) : Piece;
}

class TWindowsLog final : public IEventLog {
public:
    void EnterSource(std::u16string_view AName, std::u16string_view AProgram) noexcept override;
    std::uintptr_t OpenSource(std::u16string_view AName) noexcept override;
    void CloseSource(std::uintptr_t ASource) noexcept override;
    bool Write(std::uintptr_t ASource, TEventType AType, std::uint32_t AId, std::u16string_view AText,
               std::int32_t ALocalOffset) noexcept override;
};

void TWindowsLog::EnterSource(std::u16string_view AName, std::u16string_view AProgram) noexcept {
    try {
        const std::u16string Path =
            u"SYSTEM\\CurrentControlSet\\Services\\Eventlog\\Application\\" + std::u16string(AName);
        TKey Key;
        DWORD Outcome = 0;
        // An empty name would be the log itself.
        if (!AName.empty() && AName.find(u'\\') == std::u16string_view::npos &&
            RegCreateKeyExW(HKEY_LOCAL_MACHINE, detail::Wide(Path), 0, nullptr, 0, KEY_ALL_ACCESS, nullptr,
                            &Key.Handle, &Outcome) == ERROR_SUCCESS &&
            Outcome == REG_CREATED_NEW_KEY)
            SetValues(Key.Handle, std::u16string(AProgram));
    } catch (const std::exception&) {
        return; // no memory
    }
}

std::uintptr_t TWindowsLog::OpenSource(std::u16string_view AName) noexcept {
    try {
        return reinterpret_cast<std::uintptr_t>(
            RegisterEventSourceW(nullptr, detail::Wide(std::u16string(AName))));
    } catch (const std::exception&) {
        return 0;
    }
}

void TWindowsLog::CloseSource(std::uintptr_t ASource) noexcept {
    if (ASource != 0)
        DeregisterEventSource(reinterpret_cast<HANDLE>(ASource));
}

bool TWindowsLog::Write(std::uintptr_t ASource, TEventType AType, std::uint32_t AId,
                        std::u16string_view AText, std::int32_t) noexcept {
    if (ASource == 0)
        return false;
    try {
        bool Ok = true;
        do {
            std::u16string Piece(PieceOf(AText));
            AText.remove_prefix(Piece.size());
            std::ranges::replace(Piece, u'\0', u'\x2400');
            const wchar_t* Text = detail::Wide(Piece);
            Ok = ReportEventW(reinterpret_cast<HANDLE>(ASource), static_cast<WORD>(AType), 0, AId, nullptr, 1,
                              0, &Text, nullptr) != 0;
        } while (Ok && !AText.empty());
        return Ok;
    } catch (const std::exception&) {
        return false;
    }
}

} // namespace

IEventLog& SystemEventLog() {
    static constinit TWindowsLog Log;
    return Log;
}

} // namespace qz::platform
