// Reading by the adapter gives the same text in whatever pieces it is asked for, or the same error at the same place;
// text without surrogates that it writes is read back.
#include <algorithm>
#include <string>
#include <vector>

#include "fuzz/Fuzz.h"
#include <qz/common/uQzClasses/QzStringStream.h>
#include <qz/common/uQzClasses/Utf8StreamAdapter.h>
#include <qz/runtime/base/Utf.h>
#include <qz/runtime/objects/Exceptions.h>

namespace {

struct TOutcome {
    std::u16string Text;
    qz::UnicodeString Error;
    std::int64_t Position = 0;
};

TOutcome ReadAll(qz::TQzMemoryStream& AStream, std::int32_t APiece) {
    TOutcome Result;
    qz::TQzUTF8StreamAdapter Adapter(&AStream, false);
    std::vector<char16_t> Units(static_cast<std::size_t>(APiece));
    AStream.SetPosition(0);
    try {
        while (const std::int32_t Got = Adapter.Read(Units.data(), APiece * 2))
            Result.Text.append(Units.data(), static_cast<std::size_t>(Got / 2));
    } catch (const qz::Exception& Error) {
        Result.Error = Error.Message();
    }
    Result.Position = AStream.Position();
    return Result;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* AData, std::size_t ASize) {
    qz::TQzMemoryStream Stream(const_cast<std::uint8_t*>(AData), ASize);
    const TOutcome OneByOne = ReadAll(Stream, 1);
    for (const std::int32_t Piece : {2, 3, 7, 5000}) {
        const TOutcome Other = ReadAll(Stream, Piece);
        Require(Other.Error == OneByOne.Error && Other.Position == OneByOne.Position);
        Require(OneByOne.Text.starts_with(Other.Text) &&
                (!Other.Error.IsEmpty() || Other.Text == OneByOne.Text));
    }
    const std::u16string Text = qz::Utf8ToUtf16(TextOf(AData, ASize));
    if (std::ranges::any_of(Text, qz::IsSurrogate))
        return 0;
    qz::TQzMemoryStream Written(64);
    qz::TQzUTF8StreamAdapter Adapter(&Written, false, false);
    Adapter.WriteBuffer(Text.data(), static_cast<std::int64_t>(Text.size() * 2));
    Require(ReadAll(Written, 100).Text == Text);
    return 0;
}
