#include "tests/common/support/LogConfiguration.h"

#include <qz/runtime/text/NumberText.h>

namespace qz {

const TClassRec TConfiguration::ClassRec = DescribeClass<TConfiguration>(
    u"TConfiguration",
    {.Unit = u"Tests", .Interfaces = Interfaces<TConfiguration, IQzLogConfiguratorEx, IQzLogConfigurator>()});

Variant TConfiguration::Answer(const UnicodeString& AName, const UnicodeString& AKey, TQzMainTypeKind AKind,
                               const Variant& ADefault) {
    Asked += AName + u'/' + AKey + u':' + IntToStr(static_cast<int>(AKind)) + u' ';
    const auto Found = Answers.find(AName + u'/' + AKey);
    return Found == Answers.end() ? ADefault : Found->second;
}

} // namespace qz
