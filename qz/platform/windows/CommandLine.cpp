#include <qz/platform/CommandLine.h>

#include <memory>

#include <windows.h>

#include <shellapi.h>

#include <qz/platform/windows/WideText.h>

namespace qz::platform {

namespace {

struct TLocalFree {
    void operator()(LPWSTR* ABlock) const noexcept { LocalFree(ABlock); }
};

} // namespace

std::vector<std::u16string> CommandLineArguments() {
    int Count = 0;
    const std::unique_ptr<LPWSTR, TLocalFree> Words(CommandLineToArgvW(GetCommandLineW(), &Count));
    std::vector<std::u16string> Result;
    for (int I = 1; Words != nullptr && I < Count; ++I)
        Result.emplace_back(detail::FromWide(Words.get()[I]));
    return Result;
}

bool IsTerminal(TStandardStream AStream) noexcept {
    DWORD Mode = 0;
    return GetConsoleMode(GetStdHandle(AStream == TStandardStream::Input        ? STD_INPUT_HANDLE
                                           : AStream == TStandardStream::Output ? STD_OUTPUT_HANDLE
                                                                                : STD_ERROR_HANDLE),
                          &Mode) != 0;
}

} // namespace qz::platform
