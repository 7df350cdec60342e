struct TWindow {
    void SetTitle(const qz::UnicodeString&) {}
};
inline TWindow Window;
