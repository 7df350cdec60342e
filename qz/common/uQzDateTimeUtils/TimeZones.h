// Time zones by their abbreviations and names, with a fixed offset each.
//
//     TQzTimeZone Zone;
//     if (TQzTimeZones::FindTimeZone(u"CET", Zone)) ...          // Bias 60
//     TQzTimeZones::GetTimeZone(u"eastern standard time").Bias;  // -300
//
// The library's own table has no daylight saving rules: the daylight saving time of a zone is a separate
// entry. Any thread, without a lock.
#pragma once

#include <qz/runtime/base/StringArg.h>
#include <qz/runtime/objects/Object.h>
#include <qz/runtime/objects/TypeInfo.h>

namespace qz {

struct TQzTimeZone {
    UnicodeString Abbreviation; // the key
    UnicodeString Name;         // in English; may be empty
    UnicodeString MsName;       // in the database of Windows; may be empty
    std::int32_t Bias = 0;      // minutes east of UTC: 60 for CET

    TQzTimeZone() noexcept = default;
    TQzTimeZone(const UnicodeString& AAbbreviation, const UnicodeString& AMsName, const UnicodeString& AName,
                std::int32_t ABias) noexcept
        : Abbreviation(AAbbreviation),
          Name(AName),
          MsName(AMsName),
          Bias(ABias) {}
    friend bool operator==(const TQzTimeZone&, const TQzTimeZone&) noexcept = default;
};

class QZ_API TQzTimeZones : public TObject {
    QZ_CLASS(TQzTimeZones, TObject)

public:
    TQzTimeZones() = delete;

    // An abbreviation in the case of its letters, or else a name or Windows name in any. Of several entries
    // with one name it is the one with the lowest bias, and of those the one that the table has first. An
    // empty text finds the first entry that lacks a name. False, and an empty zone, when there is none.
    static bool FindTimeZone(const TStringArg& AName, TQzTimeZone& AZone);
    // The same; raises Exception, "Timezone %s not found!".
    static TQzTimeZone GetTimeZone(const TStringArg& AName);
};

} // namespace qz

QZ_TYPE_INFO(qz::TQzTimeZone);
