// TQzBytes: an array of bytes as a value, with operators and text forms.
//
//     TQzBytes Bytes(u"Zm9v", beBase64);
//     Bytes = Bytes + TBytes{1, 2};
//     Bytes.Encode(beHexEncoded);                   // "666F6F0102"
//     for (std::uint8_t Each : Bytes)
//         Use(Each);
//
// It holds a TBytes: copies share the array, a change of the size makes it private, and a byte that is
// written is seen through every copy. CopyFrom and CopyTo make private copies. Threads: as for TBytes.
#pragma once

#include <compare>
#include <concepts>
#include <cstdint>
#include <functional>
#include <initializer_list>
#include <span>
#include <string_view>
#include <utility>

#include <qz/common/uQzNetEncoding/BinEncoding.h>
#include <qz/runtime/base/StringArg.h>
#include <qz/runtime/streams/Stream.h>

namespace qz {

class TQzBytes;

namespace detail {
// What a TQzBytes converts to implicitly and is compared with.
template <class T>
concept CByteValue = std::same_as<T, TBytes> || std::same_as<T, RawByteString>;
} // namespace detail

class QZ_API TQzBytes {
public:
    using value_type = std::uint8_t;

    TQzBytes() noexcept = default;
    // Shares the array.
    TQzBytes(const TBytes& ABytes) noexcept : FData(ABytes) {} // NOLINT(google-explicit-constructor)
    TQzBytes(TBytes&& ABytes) noexcept                         // NOLINT(google-explicit-constructor)
        : FData(std::move(ABytes)) {}
    TQzBytes(const RawByteString& AText) : TQzBytes(AText.Bytes()) {} // NOLINT(google-explicit-constructor)
    TQzBytes(std::initializer_list<std::uint8_t> ABytes) : FData(ABytes) {}
    // A copy.
    explicit TQzBytes(std::span<const std::byte> ABytes)
        : FData(std::span(reinterpret_cast<const std::uint8_t*>(ABytes.data()), ABytes.size())) {}
    // That many zeros.
    explicit TQzBytes(std::uint32_t ASize) : FData(std::size_t{ASize}) {}
    // A copy of ASize bytes; none if ASize is below 1. Asserts that the pointer is not null then.
    template <std::integral T>
        requires(!std::same_as<T, bool>)
    TQzBytes(const void* ABuffer, T ASize)
        : TQzBytes(Memory(ABuffer, std::cmp_less(ASize, 1) ? 0 : static_cast<std::size_t>(ASize))) {}
    // What the text decodes to; see TQzNetEncoding. Raise as the encodings do.
    TQzBytes(const TStringArg& AText, TQzBinEncoding AEncoding);
    TQzBytes(const RawByteString& AText, TQzBinEncoding AEncoding);
    // The UTF-8 form, or the 16-bit units, low byte first.
    TQzBytes(const TStringArg& AText, bool AUTF8);

    static TQzBytes Empty() noexcept { return GetEmpty(); }
    static TQzBytes GetEmpty() noexcept { return {}; }

    // The first byte; null for an empty value.
    std::uint8_t* Buffer() const noexcept { return GetBuffer(); }
    std::uint8_t* GetBuffer() const noexcept { return FData.data(); }
    std::uint32_t Size() const noexcept { return GetSize(); }
    std::uint32_t GetSize() const noexcept { return static_cast<std::uint32_t>(FData.size()); }
    // Keeps the bytes up to the smaller size; added ones are 0. The array becomes private.
    void SetSize(std::uint32_t ASize) { FData.SetLength(ASize); }
    // AIndex is less than the size; nothing checks that.
    std::uint8_t Bytes(std::size_t AIndex) const noexcept { return GetByte(AIndex); }
    std::uint8_t GetByte(std::size_t AIndex) const noexcept { return FData[AIndex]; }
    // What writes bytes is not const, although the bytes are shared.
    // NOLINTBEGIN(readability-make-member-function-const)
    void SetByte(std::size_t AIndex, std::uint8_t AValue) noexcept { FData[AIndex] = AValue; }

    // As a container of C++.
    std::size_t size() const noexcept { return FData.size(); }
    bool empty() const noexcept { return FData.empty(); }
    const std::uint8_t* data() const noexcept { return FData.data(); }
    std::uint8_t* data() noexcept { return FData.data(); }
    const std::uint8_t* begin() const noexcept { return FData.begin(); }
    std::uint8_t* begin() noexcept { return FData.begin(); }
    const std::uint8_t* end() const noexcept { return FData.end(); }
    std::uint8_t* end() noexcept { return FData.end(); }
    std::uint8_t operator[](std::size_t AIndex) const noexcept { return FData[AIndex]; }
    std::uint8_t& operator[](std::size_t AIndex) noexcept { return FData[AIndex]; }
    // NOLINTEND(readability-make-member-function-const)

    // The array itself (TBytes Array = Bytes;), a copy of the bytes as text without a code page, a view of
    // them.
    operator const TBytes&() const noexcept { return FData; } // NOLINT(google-explicit-constructor)
    operator RawByteString() const;                           // NOLINT(google-explicit-constructor)
    operator std::span<const std::byte>() const noexcept {    // NOLINT(google-explicit-constructor)
        return std::as_bytes(std::span(data(), size()));
    }

    // Replace the content by a private copy.
    void CopyFrom(const TQzBytes& ASource) { CopyFrom(ASource.FData); }
    void CopyFrom(const TBytes& ASource) { FData = ASource.Copy(); }
    // Reads from APosition on, or from where the stream stands if it is negative: ACount bytes at most, or
    // all if it is 0 or less. A stream that ends early gives what it has. When it raises, the content is as
    // before. Raises std::length_error or std::bad_alloc for a size that memory cannot hold.
    void CopyFrom(TStream& AStream, std::int64_t APosition, std::int32_t ACount);
    void CopyTo(TQzBytes& ATarget) const { ATarget.FData = FData.Copy(); }
    void CopyTo(TBytes& ATarget) const { ATarget = FData.Copy(); }
    // Writes all bytes at the stream's position.
    void CopyTo(TStream& AStream) const { AStream.WriteBuffer(FData); }
    // Copies ACount bytes from AOffset on, or all from there if it is 0 or less. A negative offset counts as
    // 0. Bytes after the end are not copied.
    void CopyTo(void* ATarget, std::int32_t AOffset, std::int32_t ACount) const noexcept;

    UnicodeString Encode(TQzBinEncoding AEncoding) const;
    // The text that the bytes are in UTF-8, or as 16-bit units, low byte first; an odd byte is left out then.
    UnicodeString ToString(bool AUTF8) const;

    TQzBytes& operator+=(const TQzBytes& ABytes);
    // A new array; the operands keep theirs.
    friend TQzBytes operator+(const TQzBytes& ALeft, const TQzBytes& ARight) { return Concat(ALeft, ARight); }
    friend TQzBytes operator+(const TQzBytes& ALeft, const RawByteString& ARight) {
        return Concat(ALeft, ARight.Bytes());
    }
    friend TQzBytes operator+(const RawByteString& ALeft, const TQzBytes& ARight) {
        return Concat(ALeft.Bytes(), ARight);
    }

    // Byte by byte.
    friend bool operator==(const TQzBytes& ALeft, const TQzBytes& ARight) noexcept {
        return ALeft.FData.IsSameArray(ARight.FData) || ALeft.View() == ARight.View();
    }
    friend std::strong_ordering operator<=>(const TQzBytes& ALeft, const TQzBytes& ARight) noexcept {
        return ALeft.View() <=> ARight.View();
    }
    template <detail::CByteValue T> friend bool operator==(const TQzBytes& ALeft, const T& ARight) noexcept {
        return ALeft.View() == std::string_view(reinterpret_cast<const char*>(ARight.data()), ARight.size());
    }
    template <detail::CByteValue T>
    friend std::strong_ordering operator<=>(const TQzBytes& ALeft, const T& ARight) noexcept {
        return ALeft.View() <=> std::string_view(reinterpret_cast<const char*>(ARight.data()), ARight.size());
    }

    TBytes FData;

private:
    friend struct std::hash<TQzBytes>;

    std::string_view View() const noexcept { return {reinterpret_cast<const char*>(data()), size()}; }
    static std::span<const std::byte> Memory(const void* ABuffer, std::size_t ASize);
    static TQzBytes Concat(std::span<const std::byte> ALeft, std::span<const std::byte> ARight);
};

} // namespace qz

template <> struct std::hash<qz::TQzBytes> {
    std::size_t operator()(const qz::TQzBytes& ABytes) const noexcept {
        return std::hash<std::string_view>()(ABytes.View());
    }
};

QZ_TYPE_INFO(qz::TQzBytes);
