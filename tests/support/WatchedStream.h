// A stream in memory that counts its end.
#pragma once

#include <qz/common/uQzClasses/QzMemoryStream.h>
#include <qz/runtime/objects/Describe.h>

namespace qz {

class TWatchedStream : public TQzMemoryStream {
    QZ_CLASS(TWatchedStream, TQzMemoryStream)

public:
    explicit TWatchedStream(int& AEnds) : TQzMemoryStream(16), FEnds(AEnds) {}
    ~TWatchedStream() override { ++FEnds; }

private:
    int& FEnds;
};
inline constinit const TClassRec TWatchedStream::ClassRec =
    DescribeClass<TWatchedStream>(u"TWatchedStream", {.Unit = u"Test"});

} // namespace qz
