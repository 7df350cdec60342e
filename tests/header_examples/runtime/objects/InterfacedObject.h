#include <qz/runtime/objects/Objects.h>

namespace qz {

class IGreeter : public IInterface {
public:
    static constexpr TGUID IID = Guid("{D2C4F2A6-3E6D-4B1E-9C39-5A6E8F1B7C20}");
    virtual void Greet(const UnicodeString& AName) = 0;
};

} // namespace qz
