#include <qz/runtime/objects/Objects.h>

namespace qz {

class ISink : public IInterface {
public:
    static constexpr TGUID IID = Guid("{7B0D0F5B-6B37-4B62-8C0B-2E6B0A0B9C13}");
};
inline Ref<ISink> Sink;

} // namespace qz
