#include <qz/runtime/text/GuidText.h>

#include <qz/runtime/objects/Exceptions.h>
#include <qz/runtime/text/Format.h>

namespace qz {

UnicodeString GUIDToString(const TGUID& AGuid) {
    constexpr std::u16string_view cDigits = u"0123456789ABCDEF";
    UnicodeString Result;
    Result.Reserve(38);
    const auto Append = [&](std::uint64_t AValue, int ACount) {
        while (ACount-- > 0)
            Result += cDigits[(AValue >> (4 * ACount)) & 15];
    };
    Result += u'{';
    Append(AGuid.D1, 8);
    Result += u'-';
    Append(AGuid.D2, 4);
    Result += u'-';
    Append(AGuid.D3, 4);
    for (std::size_t I = 0; I < AGuid.D4.size(); ++I) {
        if (I == 0 || I == 2)
            Result += u'-';
        Append(AGuid.D4[I], 2);
    }
    return Result += u'}';
}

TGUID StringToGUID(const TStringArg& AText) {
    TGUID Result;
    if (!detail::ParseGuid(AText.View(), Result))
        throw EConvertError(Format(u"'%s' is not a valid GUID value", {AText.View()}));
    return Result;
}

} // namespace qz
