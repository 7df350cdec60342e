// Uses the library as an application does: derives from its classes, raises and catches its exceptions, and
// reads its data across the border of the library.
#include <qz/common/Version.h>
#include <qz/common/uQzClasses.h>
#include <qz/common/uQzSysUtils.h>
#include <qz/runtime/components/DescribeComponent.h>
#include <qz/runtime/text/Format.h>

#include <cstdio>
#include <string>

using namespace qz;

// The build gives the name of a function that does what only one system needs, or none.
#ifdef QZ_MORE
bool QZ_MORE();
#else
#define QZ_MORE() true
#endif

namespace {

class TServer : public TQzComponent {
    QZ_CLASS(TServer, TQzComponent)

protected:
    explicit TServer(TComponent* AOwner) : TQzComponent(AOwner) {}
};
const TClassRec TServer::ClassRec = DescribeComponent<TServer>(u"TServer", {.Unit = u"Consumer"});

bool RaisesAcrossTheBorder() {
    try {
        throw EQzException(u"%s", {TypeInfo<TServer>()->QualifiedName()}, 7);
    } catch (const Exception& E) {
        return E.Message() == "Consumer.TServer" && E.InheritsFrom(ClassOf<EQzException>());
    }
}

bool CountsAcrossTheBorder() {
    const Ref<IQzComponent> Server = TServer::Create(nullptr);
    const auto Object = As<IQzObject>(Server);
    return Object != nullptr && Object->Implementor()->InheritsFrom(ClassOf<TComponent>());
}

} // namespace

int main() {
    if (!RaisesAcrossTheBorder() || !CountsAcrossTheBorder() || !QZ_MORE())
        return 1;
    std::printf("%s\n", std::string(Version()).c_str());
    return 0;
}
