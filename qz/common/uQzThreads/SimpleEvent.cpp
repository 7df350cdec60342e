#include <qz/common/uQzThreads/SimpleEvent.h>

#include <qz/runtime/objects/Describe.h>
#include <qz/runtime/objects/TypeNames.h>

namespace qz {

QZ_REGISTER_TYPES(TQzSimpleEvent);

constinit const TClassRec TQzSimpleEvent::ClassRec = DescribeClass<TQzSimpleEvent>(
    u"TQzSimpleEvent", {.Unit = u"uQzThreads", .Interfaces = Interfaces<TQzSimpleEvent, IQzSimpleEvent>()});

TWaitResult TQzSimpleEvent::WaitFor(std::uint32_t ATimeOut) {
    return FSimpleEvent.WaitFor(ATimeOut);
}
void TQzSimpleEvent::SetEvent() {
    FSimpleEvent.SetEvent();
}
void TQzSimpleEvent::ResetEvent() {
    FSimpleEvent.ResetEvent();
}

} // namespace qz
