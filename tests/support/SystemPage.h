// The system's code page is another one within a block.
#pragma once

#include <qz/runtime/text/CodePages.h>

namespace qz {

class TSystemPage {
public:
    explicit TSystemPage(std::uint16_t APage) : FOld(DefaultSystemCodePage()) {
        SetDefaultSystemCodePage(APage);
    }
    TSystemPage(const TSystemPage&) = delete;
    TSystemPage& operator=(const TSystemPage&) = delete;
    ~TSystemPage() { SetDefaultSystemCodePage(FOld); }

private:
    std::uint16_t FOld;
};

} // namespace qz
