#include <qz/runtime/streams/StringStream.h>

#include <algorithm>

#include <qz/runtime/objects/Describe.h>
#include <qz/runtime/objects/TypeNames.h>

namespace qz {

QZ_REGISTER_TYPES(TStringStream);

constinit const TClassRec TStringStream::ClassRec =
    DescribeClass<TStringStream>(u"TStringStream", {.Unit = u"System"});

TStringStream::TStringStream(const TStringArg& AText, const TEncoding& AEncoding) : FEncoding(AEncoding) {
    WriteString(AText);
    FPosition = 0;
}

TStringStream::TStringStream(const TBytes& ABytes, const TEncoding& AEncoding) : FEncoding(AEncoding) {
    WriteBuffer(ABytes);
    FPosition = 0;
}

UnicodeString TStringStream::DataString() const {
    return FEncoding.GetString(Content());
}

UnicodeString TStringStream::ReadString(std::int32_t ACount) {
    const auto Start = static_cast<std::size_t>(FPosition);
    const auto Here = Content().subspan(std::min(Start, Content().size()));
    const std::size_t Count = std::min(Here.size(), static_cast<std::size_t>(std::max(ACount, 0)));
    UnicodeString Result = FEncoding.GetString(Here.first(Count));
    FPosition += static_cast<std::int64_t>(Count);
    return Result;
}

void TStringStream::WriteString(const TStringArg& AText) {
    WriteBuffer(FEncoding.GetBytes(AText));
}

} // namespace qz
