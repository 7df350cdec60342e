namespace qz {

class TQzServer : public TQzComponent {
    QZ_CLASS(TQzServer, TQzComponent)
protected:
    explicit TQzServer(TComponent* AOwner) : TQzComponent(AOwner) {}
};
class TView : public TQzComponent {
    QZ_CLASS(TView, TQzComponent)
public:
    void SetTitle(const UnicodeString& ATitle);

private:
    UnicodeString FTitle;
};
inline TView* View;
inline TQzServer *Model, *Application;

} // namespace qz
