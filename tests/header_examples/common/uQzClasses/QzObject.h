namespace qz {

class TQzShape : public TQzObject {
    QZ_CLASS(TQzShape, TQzObject)
};

} // namespace qz
