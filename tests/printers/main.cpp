// Values for the debugger to show, in a function where tests/printers/check stops.
#include <qz/common/uQzClasses/QzObject.h>
#include <qz/common/uQzTypes/NamedTypes.h>

#include <qz/runtime/lists/StringList.h>
#include <qz/runtime/time/DateTime.h>
#include <qz/runtime/values/Currency.h>
#include <qz/runtime/values/Value.h>

using namespace qz;

namespace {

volatile int Stops = 0;

[[gnu::noinline]] void Stop() {
    Stops = 1;
}

} // namespace

int main() {
    const UnicodeString Text = u"Zo\u00EB \"1\"\n", Empty;
    TStringList List;
    List.Add(u"one");
    List.Add(u"two");
    const TDateTime Leap = EncodeDateTime(2024, 2, 29, 12, 30, 0, 5);
    [[maybe_unused]] const TDateTime Before = -1.25;
    [[maybe_unused]] const TDate Day = EncodeDate(1900, 1, 1);
    const Variant Number = 17, Word = u"word", Nothing, Amount = Currency(19.99), True = true, When = Leap;
    const TValue Integer = 17, Named = tkRecord, Name = Text, Moment = Leap, NoValue;
    const Ref<IQzObject> Null, Object = TQzObject::Create();
    Stop();
    return Stops - 1;
}
