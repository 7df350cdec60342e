// System error numbers and their text, and TResult: the value of a system operation, or its error.
//
//     const TResult<std::vector<std::byte>> Data = ReadWholeFile(u"settings.xml");
//     if (!Data)
//         Show(ErrorText(Data.Code()));
//     else
//         Parse(*Data);
#pragma once

#include <concepts>
#include <string>
#include <type_traits>
#include <utility>

#include <qz/platform/Export.h>

namespace qz::platform {

// A system error number: errno on Linux; the last error or an HRESULT on Windows. 0 is success.
struct TError {
    int Code = 0;

    constexpr TError() noexcept = default;
    constexpr explicit TError(std::integral auto ACode) noexcept : Code(static_cast<int>(ACode)) {}
};

// The value of an operation, or the error for which it failed. It tests as true when the operation succeeded.
template <class T = void> class [[nodiscard]] TResult {
public:
    TResult(T AValue) noexcept(std::is_nothrow_move_constructible_v<T>) : FValue(std::move(AValue)) {}
    // AError is not 0.
    TResult(TError AError) noexcept : FError(AError) {}

    explicit operator bool() const noexcept { return FError.Code == 0; }
    // 0 on success.
    int Code() const noexcept { return FError.Code; }
    TError Error() const noexcept { return FError; }

    // On failure the value is a default-constructed one.
    T& operator*() & noexcept { return FValue; }
    const T& operator*() const& noexcept { return FValue; }
    T&& operator*() && noexcept { return std::move(FValue); }
    T* operator->() noexcept { return &FValue; }
    const T* operator->() const noexcept { return &FValue; }

private:
    T FValue{};
    TError FError;
};

template <> class [[nodiscard]] TResult<void> {
public:
    TResult() noexcept = default;
    // An AError of 0 is success.
    TResult(TError AError) noexcept : FError(AError) {}

    explicit operator bool() const noexcept { return FError.Code == 0; }
    int Code() const noexcept { return FError.Code; }
    TError Error() const noexcept { return FError; }

private:
    TError FError;
};

// The system's message for ACode on one line, without line end, final dot or surrounding blanks, in the
// language of the system. A number that the system does not know gives "Unknown error <number>". Any thread.
QZ_API std::u16string ErrorText(int ACode);

// The calling thread's last error: errno or GetLastError.
QZ_API int LastError() noexcept;
QZ_API void SetLastError(int ACode) noexcept;

// The numbers that this system has for some errors.
QZ_API TError ErrorOfMemory() noexcept;      // out of memory
QZ_API TError ErrorOfSmallTarget() noexcept; // the target is too small
QZ_API TError ErrorOfInvalidText() noexcept; // the text means nothing in its encoding

// Success, or the calling thread's last error; -1 where the system has none.
inline TResult<> ResultOf(bool AOk) noexcept {
    const int Code = AOk ? 0 : LastError();
    return TError(AOk || Code != 0 ? Code : -1);
}

} // namespace qz::platform
