#include <qz/common/uQzLogger/LogText.h>

#include <qz/runtime/text/Format.h>

namespace qz {

UnicodeString TQzLogText::Plain() const {
    switch (FKind) {
    case TKind::Text: return *static_cast<const UnicodeString*>(FData);
    case TKind::Wide: return std::u16string_view(static_cast<const char16_t*>(FData), FMore.Size);
    case TKind::Utf8: return std::string_view(static_cast<const char*>(FData), FMore.Size);
    case TKind::Other: break;
    }
    return FMore.Convert(FData);
}

UnicodeString TQzLogText::ToString() const {
    return FArgs == nullptr ? Plain() : Format(Plain(), *FArgs);
}

void TQzLogText::Check() const {
    if (FArgs == nullptr)
        return;
    switch (FKind) {
    case TKind::Wide: return CheckFormat({static_cast<const char16_t*>(FData), FMore.Size}, *FArgs);
    case TKind::Utf8: return CheckFormat({static_cast<const char*>(FData), FMore.Size}, *FArgs);
    case TKind::Text:
    case TKind::Other: return CheckFormat(Plain().View(), *FArgs);
    }
}

} // namespace qz
