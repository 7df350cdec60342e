// A text that is read as a set is written back as the same set, and each name that is found is one.

#include "fuzz/Fuzz.h"
#include <qz/runtime/base/Set.h>
#include <qz/runtime/objects/Describe.h>
#include <qz/runtime/objects/Exceptions.h>
#include <qz/runtime/values/EnumNames.h>

enum class TTone : std::uint8_t { tnLow, tnMiddle, tnHigh };
using TTones = qz::TSet<TTone, 64>;
QZ_TYPE_INFO(TTone);
QZ_TYPE_INFO(TTones);
constexpr qz::TEnumItem cTones[] = {{u"tnLow", 0}, {u"tnMiddle", 1}, {u"tnHigh", 2}};
constinit const qz::TTypeInfo qz::TTypeDescription<TTone>::Info =
    qz::DescribeEnum<TTone>(u"TTone", u"Fuzz", cTones);
constinit const qz::TTypeInfo qz::TTypeDescription<TTones>::Info =
    qz::DescribeOf<TTones, TTone>(qz::tkSet, u"TTones", u"Fuzz");

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* AData, std::size_t ASize) {
    const qz::UnicodeString Text(TextOf(AData, ASize));
    const int Tone = qz::GetEnumValue(qz::TypeInfo<TTone>(), Text);
    if (Tone >= 0 && qz::GetEnumValue(qz::TypeInfo<TTone>(), cTones[Tone].Name) != Tone)
        std::abort();
    try {
        const std::int64_t Bits = qz::StringToSet(qz::TypeInfo<TTones>(), Text);
        for (const bool Brackets : {false, true})
            if (qz::StringToSet(qz::TypeInfo<TTones>(),
                                qz::SetToString(qz::TypeInfo<TTones>(), Bits, Brackets)) != Bits)
                std::abort();
    } catch (const qz::EPropertyConvertError&) { // no set
    }
    return 0;
}
