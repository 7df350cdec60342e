// A name that is read, written and read again has the same entries, unless its text form is one of those that say
// something else: a character after a blank is written without its escape, and a comma that starts a name is passed.
#include "fuzz/Fuzz.h"
#include <qz/common/uQzClasses/DistinguishedName.h>
#include <qz/runtime/objects/Exceptions.h>

namespace {

bool ReadsBack(const qz::TQzDN& AName) {
    for (const qz::TQzRDN& Entry : AName) {
        if (&Entry != AName.begin() && Entry.FName.View().starts_with(u','))
            return false;
        for (const std::u16string_view Pair : {u" ,", u" \\", u" \""})
            if (Entry.FValue.View().find(Pair) != std::u16string_view::npos)
                return false;
    }
    return true;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* AData, std::size_t ASize) {
    qz::TQzDN Name;
    try {
        Name.ParseDN(TextOf(AData, ASize));
    } catch (const qz::EAbort&) {
        return 0;
    }
    const qz::UnicodeString Text = Name;
    if (ReadsBack(Name)) {
        const qz::TQzDN Again = Text;
        Require(Again.Text(u"\n") == Name.Text(u"\n") && Again.Count() == Name.Count());
        Require(Again == Name && Again.Hash() == Name.Hash());
    }
    return 0;
}
