namespace qz {

class TModel : public TObject {
public:
    TQzFreeNotifies FNotifies{this, [](TObject*) {}};
};
inline TModel Model;

} // namespace qz
