namespace qz {

inline TObject* FModel;
inline TQzObjectEx *View, *Model;

} // namespace qz
