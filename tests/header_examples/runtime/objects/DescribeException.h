#include <qz/runtime/objects/Exceptions.h>

namespace qz {

class EBadShape : public Exception {
    QZ_EXCEPTION(EBadShape, Exception)
public:
    using Exception::Exception;
};

} // namespace qz
