struct THeader {
    int Version;
};
inline THeader Header;
namespace qz {
extern TStream& Body;
}
