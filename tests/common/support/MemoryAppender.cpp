#include "tests/common/support/MemoryAppender.h"

namespace qz {

const TClassRec TMemoryAppender::ClassRec =
    DescribeLogBase<TMemoryAppender>(u"TMemoryAppender", {.Unit = u"Tests"});

} // namespace qz
