#pragma once

static void Import() {}
struct TWindow {
    void SetTitle(const qz::UnicodeString&) {}
};
inline TWindow Window;
inline qz::UnicodeString Title;
