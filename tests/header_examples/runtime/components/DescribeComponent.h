namespace qz {

class TServer : public TComponent {
    QZ_CLASS(TServer, TComponent)
protected:
    explicit TServer(TComponent* AOwner) : TComponent(AOwner) {}
};

} // namespace qz
