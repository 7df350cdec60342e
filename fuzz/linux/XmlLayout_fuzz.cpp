// Any logger, message and value in strict XML make a document that another's parser takes, and takes for what
// went in. The layout is the same on all systems; the parser is at hand on this one.
#include <algorithm>
#include <cstring>
#include <string>
#include <utility>
#include <vector>

#include <expat.h>

#include "fuzz/Fuzz.h"
#include <qz/common/uQzLogLayouts.h>
#include <qz/runtime/base/StringUtils.h>

namespace {

using TElements = std::vector<std::pair<std::string, std::string>>;

// Names and texts of all elements, in the order of their starts.
class TReader {
public:
    static TElements Read(const std::string& ADocument) {
        TReader Reader;
        XML_Parser Parser = XML_ParserCreate(nullptr);
        XML_SetUserData(Parser, &Reader);
        XML_SetElementHandler(Parser, &TReader::Start, &TReader::End);
        XML_SetCharacterDataHandler(Parser, &TReader::Text);
        Require(XML_Parse(Parser, ADocument.data(), static_cast<int>(ADocument.size()), XML_TRUE) ==
                XML_STATUS_OK);
        XML_ParserFree(Parser);
        return Reader.FElements;
    }

private:
    static void Start(void* AReader, const char* AName, const char**) {
        auto* const Reader = static_cast<TReader*>(AReader);
        Reader->FOpen.push_back(Reader->FElements.size());
        Reader->FElements.emplace_back(AName, std::string());
    }
    static void End(void* AReader, const char*) { static_cast<TReader*>(AReader)->FOpen.pop_back(); }
    static void Text(void* AReader, const char* AText, int ALength) {
        auto* const Reader = static_cast<TReader*>(AReader);
        Reader->FElements[Reader->FOpen.back()].second.append(AText, static_cast<std::size_t>(ALength));
    }

    TElements FElements;
    std::vector<std::size_t> FOpen;
};

// What a reader of XML gets of a text: no character that XML knows nothing of, and line feeds for all ends of
// lines.
std::string AsRead(std::u16string AText, bool AKeepsZeros) {
    if (!AKeepsZeros)
        std::erase(AText, u'\0');
    for (char16_t& Char : AText) {
        if (std::u16string_view(u"\t\r\n").find(Char) == std::u16string_view::npos &&
            (Char < 0x20 || Char > 0xFFFD))
            Char = 0xFFFD;
    }
    for (std::size_t I = 0; (I = AText.find(u'\r', I)) != std::u16string::npos;)
        AText.replace(I, I + 1 < AText.size() && AText[I + 1] == u'\n' ? 2 : 1, u"\n");
    return qz::Utf16ToUtf8(AText);
}

void Check(const std::u16string& ALogger, const std::u16string& AMessage, const std::u16string& AValue,
           qz::TQzLogLevel ALevel) {
    static const qz::Ref<qz::TQzXmlLayout> Layout(qz::TQzXmlLayout::Create(nullptr, u""));
    Layout->SetStrictXml(true);
    const qz::TValue Value = qz::TValue::From(qz::UnicodeString(AValue));
    const qz::UnicodeString Document = Layout->GetHeader() + u"\r\n" +
        Layout->FormatLine(ALogger, ALevel, AMessage, &Value, qz::liIndentNone) + u"\r\n" +
        Layout->GetFooter();
    TElements Found = TReader::Read(qz::Utf16ToUtf8(Document));
    for (auto& [Name, Text] : Found) {
        if (Name == "log" || Name == "timeStamp" || Name == "threadID")
            Text.clear();
    }
    TElements Expected = {{"log", ""},
                          {"item", ""},
                          {"timeStamp", ""},
                          {"threadID", ""},
                          {"loggerName", AsRead(ALogger, false)},
                          {"logLevel", std::to_string(static_cast<int>(ALevel))},
                          {"logIndent", "0"},
                          {"logMessage", AsRead(AMessage, false)}};
    if (std::ranges::any_of(AValue, [](char16_t AChar) { return AChar > u' '; }))
        Expected.emplace_back(
            "logValue",
            AsRead(std::u16string(qz::StringReplace(AValue, u"]]>", u"__>", {qz::rfReplaceAll})), true));
    Require(Found == Expected);
}

} // namespace

// A byte for the form of the text and the level, two for the lengths of its parts, then the text.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* AData, std::size_t ASize) {
    constexpr std::size_t cHead = 3;
    if (ASize < cHead)
        return 0;
    std::u16string Text;
    if ((AData[0] & 1) != 0) {
        Text.resize((ASize - cHead) / 2);
        std::memcpy(Text.data(), AData + cHead, Text.size() * 2);
    } else {
        Text = qz::Utf8ToUtf16({reinterpret_cast<const char*>(AData) + cHead, ASize - cHead});
    }
    const std::u16string Logger = Text.substr(0, AData[1]);
    const std::u16string Value = Text.substr(Logger.size(), AData[2]);
    Check(Logger, Text.substr(Logger.size() + Value.size()), Value,
          static_cast<qz::TQzLogLevel>((AData[0] >> 1) & 7));
    return 0;
}
