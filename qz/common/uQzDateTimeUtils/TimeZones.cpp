#include <qz/common/uQzDateTimeUtils/TimeZones.h>

#include <algorithm>
#include <array>
#include <vector>

#include <qz/common/uQzDateTimeUtils/TimeZoneTable.h>
#include <qz/common/uQzSysUtils/Compare.h>
#include <qz/runtime/objects/Describe.h>
#include <qz/runtime/objects/Exceptions.h>
#include <qz/runtime/objects/TypeNames.h>
#include <qz/runtime/values/BasicTypes.h>

namespace qz {
namespace {

using detail::cZoneRows;

constexpr std::u16string_view cUnit = u"uQzDateTimeUtils";
constexpr TFieldInfo cZoneFields[] = {
    Field<&TQzTimeZone::Abbreviation>(u"Abbreviation"), Field<&TQzTimeZone::Name>(u"Name"),
    Field<&TQzTimeZone::MsName>(u"MsName"), Field<&TQzTimeZone::Bias>(u"Bias")};

constexpr char16_t AsIs(char16_t AChar) noexcept {
    return AChar;
}
constexpr char16_t Lower(char16_t AChar) noexcept {
    return AChar >= u'A' && AChar <= u'Z' ? static_cast<char16_t>(AChar + (u'a' - u'A')) : AChar;
}
constexpr bool IsAscii(std::u16string_view AText) noexcept {
    return std::all_of(AText.begin(), AText.end(), [](char16_t AChar) { return AChar < 0x80; });
}

// A compile-time hash table from texts to rows. AFold maps texts that count as equal to one text.
template <char16_t (*AFold)(char16_t)> class TRowIndex {
public:
    static constexpr int cNone = -1;

    // A text that is there already keeps its row.
    constexpr void Add(std::u16string_view AText, std::size_t ARow) {
        std::size_t Slot = Hash(AText);
        for (; FSlots[Slot].Number != 0; Slot = (Slot + 1) % cSlots) {
            if (IsSame(FSlots[Slot].Text, AText))
                return;
        }
        FSlots[Slot] = {AText, static_cast<std::uint16_t>(ARow + 1)};
        ++FCount;
    }
    constexpr int Find(std::u16string_view AText) const noexcept {
        for (std::size_t Slot = Hash(AText); FSlots[Slot].Number != 0; Slot = (Slot + 1) % cSlots) {
            if (IsSame(FSlots[Slot].Text, AText))
                return FSlots[Slot].Number - 1;
        }
        return cNone;
    }
    constexpr int Count() const noexcept { return FCount; }

private:
    static constexpr std::size_t cSlots = 1024;
    struct TSlot {
        std::u16string_view Text;
        std::uint16_t Number; // of the row, from 1; 0 in a free slot
    };

    static constexpr std::size_t Hash(std::u16string_view AText) noexcept {
        std::uint32_t Result = 0;
        for (const char16_t Char : AText) {
            Result = (Result ^ AFold(Char)) * 0x9E3779B1;
            Result ^= Result >> 15; // mixes the high bits into the low ones
        }
        return Result % cSlots;
    }
    static constexpr bool IsSame(std::u16string_view ALeft, std::u16string_view ARight) noexcept {
        return std::equal(ALeft.begin(), ALeft.end(), ARight.begin(), ARight.end(),
                          [](char16_t A, char16_t B) { return AFold(A) == AFold(B); });
    }

    std::array<TSlot, cSlots> FSlots{};
    int FCount = 0;
};

constexpr auto cByKey = [] {
    TRowIndex<AsIs> Result;
    for (std::size_t Row = 0; Row < std::size(cZoneRows); ++Row)
        Result.Add(cZoneRows[Row].Abbreviation, Row);
    return Result;
}();
static_assert(cByKey.Count() == 263);

constexpr bool Stands(std::size_t ARow) noexcept {
    return cByKey.Find(cZoneRows[ARow].Abbreviation) == static_cast<int>(ARow);
}

constexpr auto cByName = [] {
    TRowIndex<Lower> Result;
    for (std::size_t Row = 0; Row < std::size(cZoneRows); ++Row) {
        if (!Stands(Row))
            continue;
        Result.Add(cZoneRows[Row].Name, Row);
        Result.Add(cZoneRows[Row].MsName, Row);
    }
    return Result;
}();

int FindRow(std::u16string_view AName) noexcept {
    if (const int Row = cByKey.Find(AName); Row >= 0)
        return Row;
    if (IsAscii(AName))
        return cByName.Find(AName);
    // The index knows the case of ASCII letters only.
    for (std::size_t Row = 0; Row < std::size(cZoneRows); ++Row) {
        if (Stands(Row) &&
            (QzSameText(cZoneRows[Row].Name, AName) || QzSameText(cZoneRows[Row].MsName, AName)))
            return static_cast<int>(Row);
    }
    return -1;
}

// The rows as they are given out, sharing their texts. Never destroyed.
const TQzTimeZone& ZoneOfRow(int ARow) {
    static const auto& cZones = *new std::vector<TQzTimeZone>([] {
        std::vector<TQzTimeZone> Result;
        Result.reserve(std::size(cZoneRows));
        for (const detail::TZoneRow& Row : cZoneRows)
            Result.emplace_back(Row.Abbreviation, Row.MsName, Row.Name, Row.Bias);
        return Result;
    }());
    return cZones[static_cast<std::size_t>(ARow)];
}

} // namespace

QZ_REGISTER_TYPES(TQzTimeZones, TQzTimeZone);

constinit const TTypeInfo TTypeDescription<TQzTimeZone>::Info =
    DescribeRecord<TQzTimeZone>(u"TQzTimeZone", cUnit, cZoneFields);
const TClassRec TQzTimeZones::ClassRec = DescribeClass<TQzTimeZones>(u"TQzTimeZones", {.Unit = cUnit});

bool TQzTimeZones::FindTimeZone(const TStringArg& AName, TQzTimeZone& AZone) {
    const int Row = FindRow(AName);
    AZone = Row >= 0 ? ZoneOfRow(Row) : TQzTimeZone();
    return Row >= 0;
}

TQzTimeZone TQzTimeZones::GetTimeZone(const TStringArg& AName) {
    const int Row = FindRow(AName);
    if (Row < 0)
        throw Exception(u"Timezone %s not found!", {AName.ToString()});
    return ZoneOfRow(Row);
}

} // namespace qz
