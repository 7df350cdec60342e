#include <qz/common/uQzXSTypes/XsBoolean.h>

#include <ostream>

namespace qz {

Variant TXsBoolean::ToVariant() const {
    return IsNull() ? Variant::Null() : Variant(FValue);
}

UnicodeString TXsBoolean::ToString() const {
    return FValue && !IsNull() ? u"true" : u"false";
}

void TXsBoolean::PrintOn(std::ostream& AStream) const {
    AStream << (IsNull() ? "null" : FValue ? "true" : "false");
}

void TXsBoolean::FromString(const TStringArg& AText) {
    const std::u16string_view Text = AText.View();
    if (Text.empty())
        Clear();
    else
        *this = Text[0] == u'1' || Text[0] == u'T' || Text[0] == u't';
}

} // namespace qz
