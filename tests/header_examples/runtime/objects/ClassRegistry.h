#include <qz/runtime/components/Components.h>

namespace qz {

class TServer : public TComponent {
    QZ_CLASS(TServer, TComponent)
};
inline TComponent* Owner;

} // namespace qz
