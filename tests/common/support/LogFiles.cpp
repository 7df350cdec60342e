#include "tests/common/support/LogFiles.h"

namespace qz {

const TClassRec TPlainLayout::ClassRec = DescribeLogBase<TPlainLayout>(
    u"TPlainLayout", {.Unit = u"Tests", .Interfaces = Interfaces<TPlainLayout, IQzLogLayout>()});

} // namespace qz
