// Log files in a directory for one test.
#pragma once

#include <algorithm>
#include <cstdio>
#include <map>
#include <sstream>
#include <string>

#include "tests/support/TemporaryDirectory.h"
#include <qz/common/uQzLogAppenders.h>
#include <qz/common/uQzLogLayouts.h>
#include <qz/runtime/base/Utf.h>

namespace qz {

// A line is the message; header and footer are one word.
class TPlainLayout : public TQzLogBaseWith<TQzLogBase, IQzLogLayout> {
    QZ_CLASS(TPlainLayout, TQzLogBase)

public:
    UnicodeString GetFooter() override { return u"foot"; }
    UnicodeString GetHeader() override { return u"head"; }
    UnicodeString FormatLine(const UnicodeString&, TQzLogLevel, const UnicodeString& AMessage, PQzDataRec,
                             TQzLogIndent) override {
        return AMessage;
    }

protected:
    using TQzLogBaseWith::TQzLogBaseWith;
};

inline const TClassRec TPlainLayout::ClassRec = DescribeLogBase<TPlainLayout>(
    u"TPlainLayout", {.Unit = u"Tests", .Interfaces = Interfaces<TPlainLayout, IQzLogLayout>()});

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
    // The content with "|" for each line end; "-" if the file does not exist.
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
    // The names in order, each followed by a blank.
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

// The parts between the bars.
inline std::vector<std::string> LinesOf(const std::string& AText) {
    std::vector<std::string> Result;
    std::istringstream Stream(AText);
    for (std::string Line; std::getline(Stream, Line, '|');)
        Result.push_back(Line);
    return Result;
}

// Counts lines "thread:number" between header and footer. Each must be whole and the next of its thread.
inline void CountInOrder(const std::string& AText, std::map<int, int>& ANext) {
    for (const std::string& Line : LinesOf(AText)) {
        int Thread = 0, Number = 0, Length = 0;
        if (Line == "head" || Line == "foot")
            continue;
        ASSERT_EQ(std::sscanf(Line.c_str(), "%d:%d%n", &Thread, &Number, &Length), 2) << Line;
        ASSERT_EQ(static_cast<std::size_t>(Length), Line.size()) << Line;
        ASSERT_EQ(Number, ANext[Thread]++);
    }
}

// Writes as a logger does.
template <class T>
void Say(const Ref<T>& AAppender, const UnicodeString& AMessage, TQzLogLevel ALevel = llInfo) {
    AAppender->Write(u"root", u"root", ALevel, AMessage, nullptr, liIndentNone);
}

} // namespace qz
