#include <qz/common/uQzClasses/QzFileStream.h>

#include <bit>

#include <qz/runtime/objects/Describe.h>
#include <qz/runtime/objects/TypeNames.h>

namespace qz {

static_assert(std::endian::native == std::endian::little, "units are written as they lie in memory");

QZ_REGISTER_TYPES(TQzFileStream);

constinit const TClassRec TQzFileStream::ClassRec =
    DescribeClass<TQzFileStream>(u"TQzFileStream", {.Unit = u"uQzClasses"});

void TQzFileStream::WriteString(const AnsiString& AText) {
    if (!AText.empty())
        WriteBuffer(AText.data(), AText.Length());
}

void TQzFileStream::WriteString(const TStringArg& AText) {
    const std::u16string_view Text = AText;
    if (!Text.empty())
        WriteBuffer(Text.data(), static_cast<std::int64_t>(Text.size() * sizeof(char16_t)));
}

} // namespace qz
