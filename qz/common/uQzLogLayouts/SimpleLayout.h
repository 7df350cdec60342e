// TQzSimpleLayout: a message as a line of text.
//
//     2024-01-31 08:15:02:047 - Info root.app - connected - 17
//
// The local time of formatting, the level, the logger, the message, and the value if there is one. Each
// EnterMethod without its ExitMethod indents the lines by two spaces, in all threads that write through the
// layout. Line ends in messages stay; nothing is escaped. Any number of threads may format lines.
#pragma once

#include <atomic>

#include <qz/common/uQzLogger/LogBase.h>

namespace qz {

class QZ_API TQzSimpleLayout : public TQzLogBaseWith<TQzLogBase, IQzLogLayout, _IQzLogLayout> {
    QZ_CLASS(TQzSimpleLayout, TQzLogBase)

public:
    // "Log stopped on : " and "Log started on : " with the local time.
    UnicodeString GetFooter() override;
    UnicodeString GetHeader() override;
    UnicodeString FormatLine(const UnicodeString& ALogger, TQzLogLevel ALevel, const UnicodeString& AMessage,
                             PQzDataRec AValue, TQzLogIndent AIndent) override;
    void Initialize(TQzLogBase* ALogBase) override;

protected:
    using TQzLogBaseWith::TQzLogBaseWith;

private:
    std::size_t Indent(TQzLogIndent AIndent) noexcept;

    std::atomic<std::size_t> FIndent{0}; // in steps of two spaces
};

} // namespace qz
