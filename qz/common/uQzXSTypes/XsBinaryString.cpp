#include <qz/common/uQzXSTypes/XsBinaryString.h>

#include <ostream>

#include <qz/common/uQzClasses/QzMemoryStream.h>
#include <qz/common/uQzClasses/QzStringStream.h>
#include <qz/common/uQzNetEncoding/QzNetEncoding.h>
#include <qz/runtime/objects/Describe.h>

namespace qz {
namespace {

constexpr std::u16string_view cUnit = u"uQzXSTypes";

RawByteString LoadText(const TNetEncodingEx& AEncoding, TStream& AStream, std::size_t ACapacity) {
    TQzStringStream Text(cUtf8CodePage, ACapacity);
    AEncoding.Encode(AStream, Text);
    return RawByteString({reinterpret_cast<const char*>(Text.FBufferStart), Text.FContentSize},
                         cUtf8CodePage);
}

void SaveText(const TNetEncodingEx& AEncoding, TStream& AStream, const RawByteString& AText) {
    // The stream only reads from the block.
    TQzMemoryStream Text(const_cast<char*>(AText.data()), AText.size());
    AEncoding.Decode(Text, AStream);
}

} // namespace

constinit const TClassRec TXsBinaryStringEncoding::ClassRec =
    DescribeClass<TXsBinaryStringEncoding>(u"TXsBinaryStringEncoding", {.Unit = cUnit});
constinit const TClassRec TXsBinaryStringHexEncoding::ClassRec =
    DescribeClass<TXsBinaryStringHexEncoding>(u"TXsBinaryStringHexEncoding", {.Unit = cUnit});
constinit const TClassRec TXsBinaryStringB64Encoding::ClassRec =
    DescribeClass<TXsBinaryStringB64Encoding>(u"TXsBinaryStringB64Encoding", {.Unit = cUnit});

RawByteString TXsBinaryStringHexEncoding::LoadFromStream(TStream& AStream) {
    const auto Size = static_cast<std::size_t>(AStream.GetSize());
    return LoadText(TQzNetEncoding::GetHexEncoding(), AStream, 2 * Size + 1);
}

void TXsBinaryStringHexEncoding::SaveToStream(TStream& AStream, const RawByteString& AData) {
    SaveText(TQzNetEncoding::GetHexEncoding(), AStream, AData);
}

RawByteString TXsBinaryStringB64Encoding::LoadFromStream(TStream& AStream) {
    return LoadText(TQzNetEncoding::GetBase64ExEncoding(), AStream, 16);
}

void TXsBinaryStringB64Encoding::SaveToStream(TStream& AStream, const RawByteString& AData) {
    SaveText(TQzNetEncoding::GetBase64ExEncoding(), AStream, AData);
}

template <class E> Variant TXsBinaryString<E>::ToVariant() const {
    return IsNull() ? Variant::Null() : Variant(AnsiString(FValue.View()));
}

template <class E> void TXsBinaryString<E>::PrintOn(std::ostream& AStream) const {
    if (IsNull())
        AStream << "null";
    else
        AStream << FValue;
}

template <class E> void TXsBinaryString<E>::SaveBinaryData(TStream& AStream) const {
    if (!IsNull())
        E::SaveToStream(AStream, FValue);
}

template <class E> void TXsBinaryString<E>::LoadBinaryData(TStream& AStream) {
    FValue = E::LoadFromStream(AStream);
    FHasValue = detail::cXsMarker;
}

template class TXsBinaryString<TXsBinaryStringB64Encoding>;
template class TXsBinaryString<TXsBinaryStringHexEncoding>;

} // namespace qz
