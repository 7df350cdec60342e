// A source that sees <windows.h> before the library: the names that are macros there still mean ours.
#include <windows.h>

#include <qz/platform/PlainNames.h>

#include <qz/common/uQzClasses.h>
#include <qz/runtime/objects/ClassRegistry.h>

bool UsesNamesThatAreMacros() {
    qz::RegisterClass(qz::ClassOf<qz::TQzObject>());
    qz::TObject Carried;
    const qz::Ref<qz::IQzObjectAdapter> Adapter = qz::TQzObjectAdapter::Create(&Carried, qz::ooReference);
    return Adapter->GetObject() == &Carried && qz::GetClass(u"TQzObject") == qz::ClassOf<qz::TQzObject>();
}
