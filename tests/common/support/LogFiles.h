// Log files in a directory of a test's own.
#pragma once

#include <algorithm>
#include <string>

#include "tests/support/TemporaryDirectory.h"
#include <qz/common/uQzLogAppenders.h>
#include <qz/common/uQzLogLayouts.h>
#include <qz/runtime/base/Utf.h>

namespace qz {

// The message alone; a header and a footer of one word.
class TPlainLayout : public TQzLogBase, public IQzLogLayout {
    QZ_CLASS(TPlainLayout, TQzLogBase)
    QZ_LOG_BASE(TQzLogBase)

public:
    UnicodeString GetFooter() override { return u"foot"; }
    UnicodeString GetHeader() override { return u"head"; }
    UnicodeString FormatLine(const UnicodeString&, TQzLogLevel, const UnicodeString& AMessage, PQzDataRec,
                             TQzLogIndent) override {
        return AMessage;
    }

protected:
    using TQzLogBase::TQzLogBase;
};

class TLogFiles {
public:
    // An appender of that class to that file.
    template <class T> Ref<T> Make(const UnicodeString& AFile = u"app.log") {
        const Ref<T> Result(T::Create(nullptr, u""));
        Result->SetFileName(Path(AFile));
        Result->SetLayout(TQzLogBaseClass::Of<TPlainLayout>());
        return Result;
    }
    UnicodeString Path(const UnicodeString& AFile) const { return FDirectory / AFile.View(); }
    // The content with "|" for each end of a line; "-" when there is no such file.
    std::string Text(const UnicodeString& AFile = u"app.log") const {
        const auto Bytes = platform::ReadWholeFile(Path(AFile));
        if (!Bytes)
            return "-";
        std::string Result(reinterpret_cast<const char*>(Bytes->data()), Bytes->size());
        for (std::size_t End; (End = Result.find("\r\n")) != std::string::npos;)
            Result.replace(End, 2, "|");
        return Result;
    }
    void Put(const UnicodeString& AFile, std::string_view AText) const {
        EXPECT_TRUE(platform::WriteWholeFile(Path(AFile), std::as_bytes(std::span(AText))));
    }
    // The names in order, each with a blank behind it.
    std::string Names() const {
        const auto Entries = platform::ListDirectory(FDirectory.Path());
        std::vector<std::string> Names;
        for (const platform::TDirEntry& Entry : *Entries)
            Names.push_back(Utf16ToUtf8(Entry.Name));
        std::sort(Names.begin(), Names.end());
        std::string Result;
        for (const std::string& Name : Names)
            Result += Name + ' ';
        return Result;
    }

private:
    platform::TTemporaryDirectory FDirectory;
};

// As a logger writes.
inline void Say(IQzLogAppender& AAppender, const UnicodeString& AMessage, TQzLogLevel ALevel = llInfo) {
    AAppender.Write(u"root", u"root", ALevel, AMessage, nullptr, liIndentNone);
}
template <class T>
void Say(const Ref<T>& AAppender, const UnicodeString& AMessage, TQzLogLevel ALevel = llInfo) {
    AAppender->Write(u"root", u"root", ALevel, AMessage, nullptr, liIndentNone);
}

} // namespace qz
