// A name that is read, written and read again has the same entries. Left out is what the text form cannot
// say: a comma at the start of a name, and what is special right after a blank.
#include "fuzz/Fuzz.h"
#include <qz/common/uQzClasses/DistinguishedName.h>
#include <qz/runtime/objects/Exceptions.h>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* AData, std::size_t ASize) {
    qz::TQzDN Name;
    try {
        Name.ParseDN(TextOf(AData, ASize));
    } catch (const qz::EAbort&) {}
    for (const qz::TQzRDN& Entry : Name) {
        const std::u16string_view Value = Entry.FValue;
        if (Entry.FName.View().starts_with(u',') || Value.find(u" ,") != Value.npos ||
            Value.find(u" \\") != Value.npos || Value.find(u" \"") != Value.npos)
            return 0;
    }
    const qz::TQzDN Again = qz::UnicodeString(Name);
    Require(Again.Text(u"\n") == Name.Text(u"\n") && Again == Name && Again.Hash() == Name.Hash());
    return 0;
}
