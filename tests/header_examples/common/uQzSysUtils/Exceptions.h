#include <qz/runtime/objects/DescribeException.h>

namespace qz {

class EHostUnreachable : public EQzException {
    QZ_EXCEPTION(EHostUnreachable, EQzException)
public:
    using EQzException::EQzException;
};

} // namespace qz
