#include "common/uQzClasses/QzObjectAdapter.h"

#include "runtime/reflection/Describe.h"

namespace qz {

constinit const TClassRec TQzObjectAdapter::ClassRec = DescribeClass<TQzObjectAdapter>(
    u"TQzObjectAdapter",
    {.Unit = u"uQzClasses", .Interfaces = Interfaces<TQzObjectAdapter, IQzObjectAdapter, IQzObject>()});

TQzObjectAdapter::~TQzObjectAdapter() {
    if (FOwnership == ooOwned)
        FreeAndNil(FObject);
}

} // namespace qz
