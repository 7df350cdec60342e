#include <qz/common/uQzClasses/QzObjectAdapter.h>

#include <qz/runtime/objects/Describe.h>
#include <qz/runtime/objects/TypeNames.h>

namespace qz {

QZ_REGISTER_TYPES(TQzObjectAdapter);

constinit const TClassRec TQzObjectAdapter::ClassRec = DescribeClass<TQzObjectAdapter>(
    u"TQzObjectAdapter",
    {.Unit = u"uQzClasses", .Interfaces = Interfaces<TQzObjectAdapter, IQzObjectAdapter, IQzObject>()});

TQzObjectAdapter::~TQzObjectAdapter() {
    if (FOwnership == ooOwned)
        FreeAndNil(FObject);
}

} // namespace qz
