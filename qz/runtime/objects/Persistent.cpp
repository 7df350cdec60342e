#include <qz/runtime/objects/Persistent.h>

#include <qz/runtime/objects/Describe.h>
#include <qz/runtime/objects/Exceptions.h>
#include <qz/runtime/objects/TypeNames.h>

namespace qz {

QZ_REGISTER_TYPES(TPersistent);

constinit const TClassRec TPersistent::ClassRec =
    DescribeClass<TPersistent>(u"TPersistent", {.Unit = u"System"});

void TPersistent::Assign(TPersistent* ASource) {
    if (ASource == nullptr)
        AssignError(nullptr);
    ASource->AssignTo(this);
}

void TPersistent::AssignTo(TPersistent* ADest) {
    ADest->AssignError(this);
}

void TPersistent::AssignError(const TPersistent* ASource) const {
    throw EConvertError(
        SAssignError, {ASource == nullptr ? std::u16string_view(u"nil") : ASource->ClassName(), ClassName()});
}

UnicodeString TPersistent::GetNamePath() const {
    const TPersistent* Owner = GetOwner();
    const UnicodeString Path = Owner == nullptr ? UnicodeString() : Owner->GetNamePath();
    return Path.empty() ? UnicodeString(ClassName()) : Path + u'.' + ClassName();
}

} // namespace qz
