#include <qz/runtime/text/Utf8Form.h>

#include <qz/runtime/base/Utf.h>

namespace qz {

TUtf8Form::TUtf8Form(std::u16string_view AText) {
    char* Target = FShort;
    if (AText.size() > sizeof FShort / 3) {
        FLong.reset(new char[Utf16ToUtf8Length(AText)]); // not initialised
        Target = FLong.get();
    }
    FSize = static_cast<std::size_t>(Utf16ToUtf8(AText, Target) - Target);
}

} // namespace qz
