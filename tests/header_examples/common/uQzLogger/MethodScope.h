#include <qz/common/uQzLogger.h>

inline qz::Ref<qz::IQzLogger> Log;
namespace qz {

class TServer : public TObject {
    QZ_CLASS(TServer, TObject)
public:
    void Run();
};

} // namespace qz
