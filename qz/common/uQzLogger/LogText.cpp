#include <qz/common/uQzLogger/LogText.h>

#include <qz/runtime/text/Format.h>

namespace qz {

UnicodeString TQzLogText::Plain() const {
    switch (FKind) {
    case TKind::Text: return *static_cast<const UnicodeString*>(FData);
    case TKind::Wide: return View<char16_t>();
    case TKind::Utf8: return View<char>();
    case TKind::Other: break;
    }
    return FMore.Convert(FData);
}

UnicodeString TQzLogText::ToString() const {
    return FArgs == nullptr ? Plain() : Format(Plain(), *FArgs);
}

void TQzLogText::CheckFor(const TVarRecs& AArgs) const {
    switch (FKind) {
    case TKind::Wide: return CheckFormat(View<char16_t>(), AArgs);
    case TKind::Utf8: return CheckFormat(View<char>(), AArgs);
    case TKind::Text:
    case TKind::Other: return CheckFormat(Plain().View(), AArgs);
    }
}

} // namespace qz
