#include <qz/runtime/objects/InterfacedObject.h>

namespace qz {

class IJob : public IInterface {
public:
    static constexpr TGUID IID = Guid("{8B0D0F5B-6B37-4B62-8C0B-2E6B0A0B9C14}");
};
class TJob : public TInterfacedObject, public IJob {
    QZ_CLASS(TJob, TInterfacedObject)
    QZ_INTERFACE_COUNTING(TInterfacedObject)
};

} // namespace qz
