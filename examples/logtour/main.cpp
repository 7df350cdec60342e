// Reads text files of any code page and logs their lines, by a tree of loggers that an application's
// configurator sets up, to a plain file, two families of files and an XML document with its stylesheet; then
// tells what it did and how fast.
#include <qz/common/uQzClasses.h>
#include <qz/common/uQzLogger.h>
#include <qz/common/uQzTypes.h>
#include <qz/platform/CommandLine.h>

#include <algorithm>
#include <chrono>
#include <iostream>
#include <set>

#include "Configuration.h"
#include "Places.h"
#include "TextFile.h"

#include <qz/runtime/base/StringUtils.h>
#include <qz/runtime/files/FileNames.h>
#include <qz/runtime/files/FileSystem.h>
#include <qz/runtime/text/Format.h>
#include <qz/runtime/text/NumberText.h>

using namespace qz;

namespace {

constexpr int cStatusFailed = 1;
constexpr int cStatusBadInput = 2;

constexpr const char* cUsage =
    R"(usage: logtour [--out DIR] [--page PAGE] [FILE...]

Logs each line of the files, or of some text files of this machine where none is named, and writes below DIR:

  plain.log                  all of them in one file
  sizes/tour.log, ...        in files of 16 MiB, of which five are kept
  days/tour.log, ...         in a file for each day, which the runs of the day share
  table.log.xml, .xsl        as an XML document, which a browser shows as a table

A line with a word that begins with "fatal", "panic" or "critical" is fatal, one with "error" or "fail" an error, one
with "warn" a warning; "debug" makes it a debug message; a blank line is a trace message, and any other an information.

  --out DIR     the directory for what is written ("logtour", below the current one)
  --page PAGE   the code page, by name or number, of files that do not tell it by a byte order mark (the system's)
  --help        this text

A file that cannot be read is told and passed over, and the exit status is 2 then, as for wrong arguments. It is 1
when something could not be written.
)";

struct TOptions {
    UnicodeString Directory = u"logtour";
    std::uint16_t CodePage = 0;
    std::vector<UnicodeString> Files;
    bool WantsHelp = false;
};

// Raises Exception.
std::uint16_t ParsePage(const UnicodeString& AText) {
    std::int32_t Number = 0;
    if (!TryStrToInt(AText, Number))
        return QzCodePage(AText);
    if (Number < 0 || Number > UINT16_MAX)
        throw Exception(u"%s is not the number of a code page", {AText});
    return static_cast<std::uint16_t>(Number);
}

// Raises Exception for what makes no sense.
TOptions ParseArguments(const std::vector<std::u16string>& AArguments) {
    TOptions Result;
    bool TakesOptions = true;
    for (std::size_t I = 0; I < AArguments.size(); ++I) {
        const UnicodeString Argument = AArguments[I];
        const auto Value = [&]() -> UnicodeString {
            if (I + 1 == AArguments.size() || AArguments[I + 1].empty())
                throw Exception(u"%s needs a value", {Argument});
            return AArguments[++I];
        };
        if (!TakesOptions || !StartsStr(u"-", Argument))
            Result.Files.push_back(Argument);
        else if (Argument == u"--")
            TakesOptions = false;
        else if (Argument == u"--out")
            Result.Directory = Value();
        else if (Argument == u"--page")
            Result.CodePage = ParsePage(Value());
        else if (Argument == u"--help")
            Result.WantsHelp = true;
        else
            throw Exception(u"unknown option %s; --help lists the options", {Argument});
    }
    return Result;
}

double SecondsSince(std::chrono::steady_clock::time_point AStart) {
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - AStart).count();
}

UnicodeString PageText(std::uint16_t ACodePage) {
    const std::uint16_t Page = RealCodePage(ACodePage);
    UnicodeString Name;
    try {
        Name = QzCodePage(Page);
    } catch (const Exception&) { // not every page has one
        Name = IntToStr(Page);
    }
    return ACodePage == 0 ? Name + u" (system)" : Name;
}

// A name of its own for the logger of each file; points would make parts of it.
UnicodeString LoggerName(const UnicodeString& AFileName, std::set<UnicodeString>& ATaken) {
    const UnicodeString Base = StringReplace(ExtractFileName(AFileName), u".", u"_", {rfReplaceAll});
    UnicodeString Name = Base;
    for (int Number = 2; !ATaken.insert(Name).second; ++Number)
        Name = Format(u"%s-%d", {Base, Number});
    return Name;
}

void PrintRow(const UnicodeString& AName, const TTextFile& AFile, const UnicodeString& APage) {
    std::cout << Format(u"%-22s %11d %9d", {AName, AFile.Bytes, AFile.Lines});
    for (const TQzLogLevel Level : {llTrace, llDebug, llInfo, llWarn, llError, llFatal})
        std::cout << Format(u" %7d", {AFile.OfLevel[static_cast<std::size_t>(Level)]});
    std::cout << (APage.IsEmpty() ? APage : u"  " + APage) << '\n';
}

void PrintHead() {
    std::cout << Format(u"%-22s %11s %9s", {u"read", u"bytes", u"lines"});
    for (const TQzLogLevel Level : {llTrace, llDebug, llInfo, llWarn, llError, llFatal})
        std::cout << Format(u" %7s", {LowerCase(QzLogLevelName(Level))});
    std::cout << "  code page\n";
}

// One line on a terminal, which is written over; nothing elsewhere.
class TProgress {
public:
    void Show(const UnicodeString& AName, const TTextFile& AFile) {
        if (!FIsShown || SecondsSince(FLast) < 0.1)
            return;
        FLast = std::chrono::steady_clock::now();
        std::cerr << Format(u"\r%.40s: %d lines", {AName, AFile.Lines}) << std::flush;
    }
    void Clear() const {
        if (FIsShown)
            std::cerr << '\r' << std::string(70, ' ') << '\r' << std::flush;
    }

private:
    bool FIsShown = platform::IsTerminal(platform::TStandardStream::Error);
    std::chrono::steady_clock::time_point FLast = std::chrono::steady_clock::now();
};

struct TTotal {
    TTextFile All;
    int Files = 0;
    bool HasFailed = false;
};

void Add(TTotal& ATotal, const TTextFile& AFile) {
    ++ATotal.Files;
    ATotal.All.Bytes += AFile.Bytes;
    ATotal.All.Lines += AFile.Lines;
    ATotal.All.Messages += AFile.Messages;
    for (std::size_t I = 0; I < AFile.OfLevel.size(); ++I)
        ATotal.All.OfLevel[I] += AFile.OfLevel[I];
}

TTotal LogFiles(const TOptions& AOptions) {
    // Held from the first file to the last, as it keeps the appenders; each logger below lives for one file.
    const Ref<IQzLogger> Tour = Logger().GetLogger("tour");
    TTotal Total;
    TProgress Progress;
    std::set<UnicodeString> Names;
    for (const UnicodeString& File : AOptions.Files) {
        const UnicodeString Name = ExtractFileName(File);
        const Ref<IQzLogger> Log = Tour->GetLogger(LoggerName(File, Names));
        try {
            const TTextFile Done = LogTextFile(File, AOptions.CodePage, *Log,
                                               [&](const TTextFile& ASoFar) { Progress.Show(Name, ASoFar); });
            Progress.Clear();
            if (Total.Files == 0)
                PrintHead();
            PrintRow(Name, Done, PageText(Done.CodePage));
            Add(Total, Done);
        } catch (const Exception& Error) {
            std::cerr << "logtour: " << File << ": " << Error.Message() << '\n';
            Total.HasFailed = true;
        } catch (const std::exception&) { // std::bad_alloc or std::length_error
            std::cerr << "logtour: " << File << ": is too large to be held in memory\n";
            Total.HasFailed = true;
        }
    }
    return Total;
}

void PrintTotal(const TTotal& ATotal, double ASeconds) {
    if (ATotal.Files > 1)
        PrintRow(u"all", ATotal.All, u"");
    if (ATotal.All.Messages != ATotal.All.Lines)
        std::cout << Format(u"Long lines went in pieces: %d messages.\n", {ATotal.All.Messages});
    const double Seconds = std::max(ASeconds, 1e-6);
    std::cout << Format(u"%d lines to four appenders in %.2f s: %.0f lines and %.1f MB a second\n\n",
                        {ATotal.All.Lines, Seconds, static_cast<double>(ATotal.All.Lines) / Seconds,
                         static_cast<double>(ATotal.All.Bytes) / Seconds / 1e6});
}

void PrintFiles(const UnicodeString& ADirectory) {
    std::cout << Format(u"%-40s %12s\n", {u"what is there now", u"bytes"});
    for (const TWrittenFile& File : FilesBelow(ADirectory))
        std::cout << Format(u"%-40s %12d\n", {File.Path, File.Bytes});
}

int Run(TOptions AOptions) {
    if (AOptions.Files.empty())
        AOptions.Files = TextFilesOfThisMachine();
    if (AOptions.Files.empty()) {
        std::cerr << "logtour: no text file was found on this machine; name one\n";
        return cStatusBadInput;
    }
    const UnicodeString Directory = IncludeTrailingPathDelimiter(AOptions.Directory);
    if (!ForceDirectories(Directory)) {
        std::cerr << "logtour: cannot make the directory " << Directory << '\n';
        return cStatusFailed;
    }
    QzSetLogDropHook([](const TQzLogDrop& ADrop) {
        std::cerr << "logtour: " << ADrop.Appender << ": " << ADrop.Message << '\n';
    });
    Logger().SetConfig(TourConfiguration(Directory).Get());
    const auto Start = std::chrono::steady_clock::now();
    const TTotal Total = LogFiles(AOptions);
    CloseRootLogger(); // ends the files
    if (Total.Files == 0)
        return cStatusBadInput;
    PrintTotal(Total, SecondsSince(Start));
    PrintFiles(Directory);
    if (const std::uint64_t Dropped = QzDroppedLogMessages()) {
        std::cerr << "logtour: " << Dropped << " messages could not be written everywhere\n";
        return cStatusFailed;
    }
    return Total.HasFailed ? cStatusBadInput : 0;
}

} // namespace

int main() {
    TOptions Options;
    try {
        Options = ParseArguments(platform::CommandLineArguments());
    } catch (const Exception& Error) {
        std::cerr << "logtour: " << Error.Message() << '\n';
        return cStatusBadInput;
    }
    if (Options.WantsHelp) {
        std::cout << cUsage;
        return 0;
    }
    try {
        return Run(std::move(Options));
    } catch (const Exception& Error) {
        std::cerr << "logtour: " << Error.Message() << '\n';
        return cStatusFailed;
    }
}
