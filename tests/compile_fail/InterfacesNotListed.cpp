// expect: InterfacesAreMissing | is not a constant expression
#include <qz/runtime/objects/Describe.h>
#include <qz/runtime/objects/InterfacedObject.h>

class IGreeter : public qz::IInterface {
public:
    static constexpr qz::TGUID IID = qz::Guid("{0B0C4A63-51E4-4E5B-8A5E-3C1A0A3E2B01}");
};

class TGreeter : public qz::TInterfacedObject, public IGreeter {
    QZ_CLASS(TGreeter, qz::TInterfacedObject)
    QZ_INTERFACE_COUNTING(qz::TInterfacedObject)
};

#ifdef QZ_SHOULD_FAIL
const qz::TClassRec TGreeter::ClassRec = qz::DescribeClass<TGreeter>(u"TGreeter", {.Unit = u"Demo"});
#else
const qz::TClassRec TGreeter::ClassRec = qz::DescribeClass<TGreeter>(
    u"TGreeter", {.Unit = u"Demo", .Interfaces = qz::Interfaces<TGreeter, IGreeter>()});
#endif
