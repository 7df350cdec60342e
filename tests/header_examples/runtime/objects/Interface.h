#include <qz/runtime/objects/Objects.h>

namespace qz {

class IOther : public IInterface {
public:
    static constexpr TGUID IID = Guid("{6B0D0F5B-6B37-4B62-8C0B-2E6B0A0B9C12}");
    virtual void Wave() = 0;
};

} // namespace qz
