#include <qz/platform/linux/ZoneFile.h>

#include <algorithm>
#include <cstring>
#include <string_view>

#include <qz/platform/linux/ZoneText.h>

namespace qz::platform::detail {

namespace {

constexpr std::int32_t cLowestOffset =
    -89'999; // the bounds of the format's description, about 25 and 26 hours
constexpr std::int32_t cHighestOffset = 93'599;

// Takes from the front of the data. After its end everything is 0, and the reader remembers.
class TReader {
public:
    explicit TReader(std::span<const std::byte> AData) noexcept : FData(AData) {}

    bool HasFailed() const noexcept { return FHasFailed; }
    std::span<const std::byte> Take(std::uint64_t ASize) noexcept {
        if (ASize > FData.size()) {
            FHasFailed = true;
            FData = {};
            return {};
        }
        const auto Result = FData.first(static_cast<std::size_t>(ASize));
        FData = FData.subspan(Result.size());
        return Result;
    }
    // A signed number in the order of the network.
    std::int64_t Number(std::size_t ASize) noexcept {
        const auto Bytes = Take(ASize);
        if (Bytes.empty())
            return 0;
        std::uint64_t Result = (std::to_integer<std::uint64_t>(Bytes[0]) & 0x80) != 0 ? ~std::uint64_t{0} : 0;
        for (const std::byte Each : Bytes)
            Result = Result << 8 | std::to_integer<std::uint64_t>(Each);
        return static_cast<std::int64_t>(Result);
    }
    std::string_view Rest() const noexcept {
        return {reinterpret_cast<const char*>(FData.data()), FData.size()};
    }

private:
    std::span<const std::byte> FData;
    bool FHasFailed = false;
};

struct THeader {
    bool IsValid;
    char Version;
    std::uint32_t UtCount, StandardCount, LeapCount, TimeCount, TypeCount, NameSize;
};

THeader ReadHeader(TReader& AReader) noexcept {
    THeader Result{};
    const auto Start = AReader.Take(20); // a mark, the version, and room for later
    Result.IsValid = Start.size() == 20 && std::memcmp(Start.data(), "TZif", 4) == 0;
    if (!Result.IsValid)
        return Result;
    Result.Version = std::to_integer<char>(Start[4]);
    for (std::uint32_t* Count : {&Result.UtCount, &Result.StandardCount, &Result.LeapCount, &Result.TimeCount,
                                 &Result.TypeCount, &Result.NameSize})
        *Count = static_cast<std::uint32_t>(AReader.Number(4));
    Result.IsValid = !AReader.HasFailed();
    return Result;
}

std::uint64_t SizeOfMarks(const THeader& AHeader, std::size_t ATimeSize) noexcept {
    return std::uint64_t{AHeader.LeapCount} * (ATimeSize + 4) + AHeader.StandardCount + AHeader.UtCount;
}

std::uint64_t SizeOfBlock(const THeader& AHeader, std::size_t ATimeSize) noexcept {
    return std::uint64_t{AHeader.TimeCount} * (ATimeSize + 1) + std::uint64_t{AHeader.TypeCount} * 6 +
        AHeader.NameSize + SizeOfMarks(AHeader, ATimeSize);
}

bool ReadChanges(TReader AData, const THeader& AHeader, std::size_t ATimeSize, TSystemZone& AZone) {
    TReader Numbers = AData;
    Numbers.Take(std::uint64_t{AHeader.TimeCount} * ATimeSize);
    AZone.Changes.reserve(AHeader.TimeCount);
    for (std::uint32_t Index = 0; Index < AHeader.TimeCount; ++Index) {
        const std::int64_t From = AData.Number(ATimeSize);
        const auto Kind = static_cast<std::uint16_t>(Numbers.Number(1) & 0xFF);
        if (Kind >= AHeader.TypeCount || (!AZone.Changes.empty() && From <= AZone.Changes.back().From))
            return false;
        AZone.Changes.push_back({From, Kind});
    }
    return true;
}

bool ReadKinds(TReader AData, const THeader& AHeader, TSystemZone& AZone) {
    TReader Names = AData;
    Names.Take(std::uint64_t{AHeader.TypeCount} * 6);
    const std::string_view All = Names.Rest().substr(0, AHeader.NameSize);
    for (std::uint32_t Index = 0; Index < AHeader.TypeCount; ++Index) {
        const std::int64_t Offset = AData.Number(4);
        const std::int64_t IsDaylight = AData.Number(1);
        const auto Start = static_cast<std::size_t>(AData.Number(1) & 0xFF);
        const std::size_t End = All.find('\0', Start);
        if (Offset < cLowestOffset || Offset > cHighestOffset || (IsDaylight & ~std::int64_t{1}) != 0 ||
            End == std::string_view::npos)
            return false;
        const std::string_view Name = All.substr(Start, End - Start);
        AZone.Kinds.push_back(
            {static_cast<std::int32_t>(Offset), IsDaylight != 0, {Name.begin(), Name.end()}});
    }
    return true;
}

// A rule text between two line ends. Without one that can be read, the last change stays.
void ReadFooter(std::string_view AText, TSystemZone& AZone) {
    const std::size_t End = AText.find('\n', 1);
    if (AText.starts_with('\n') && End != std::string_view::npos)
        ReadZoneText(AText.substr(1, End - 1), AZone);
}

bool ReadBlock(TReader& AReader, const THeader& AHeader, std::size_t ATimeSize, TSystemZone& AZone) {
    constexpr std::uint32_t cMostKinds = 256;
    const auto Block = AReader.Take(SizeOfBlock(AHeader, ATimeSize));
    if (AReader.HasFailed() || AHeader.TypeCount == 0 || AHeader.TypeCount > cMostKinds)
        return false;
    const auto Kinds = Block.subspan(std::size_t{AHeader.TimeCount} * (ATimeSize + 1));
    if (!ReadChanges(TReader(Block), AHeader, ATimeSize, AZone) || !ReadKinds(TReader(Kinds), AHeader, AZone))
        return false;
    AZone.FirstKind = 0; // as the format says
    return true;
}

} // namespace

bool ReadZoneFile(std::span<const std::byte> AData, TSystemZone& AZone) {
    TReader Reader(AData);
    THeader Header = ReadHeader(Reader);
    TSystemZone Result;
    if (!Header.IsValid)
        return false;
    if (Header.Version == 0) { // 32-bit times, no rule
        if (!ReadBlock(Reader, Header, 4, Result))
            return false;
    } else { // the same again with 64 bits
        Reader.Take(SizeOfBlock(Header, 4));
        Header = ReadHeader(Reader);
        if (!Header.IsValid || !ReadBlock(Reader, Header, 8, Result))
            return false;
        ReadFooter(Reader.Rest(), Result);
    }
    Result.Id = std::move(AZone.Id);
    AZone = std::move(Result);
    return true;
}

} // namespace qz::platform::detail
