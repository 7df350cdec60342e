// A walk through what every program uses first: text, formatted text, dates, objects and threads.
#include <qz/common/Version.h>
#include <qz/common/uQzClasses.h>
#include <qz/common/uQzThreads.h>

#include <iostream>

#include <qz/runtime/base/StringUtils.h>
#include <qz/runtime/objects/Describe.h>
#include <qz/runtime/objects/Exceptions.h>
#include <qz/runtime/text/Format.h>
#include <qz/runtime/threads/Thread.h>
#include <qz/runtime/time/DateTime.h>

using namespace qz;

namespace {

// An object that tells when it ends.
class TGuest : public TQzObject {
    QZ_CLASS(TGuest, TQzObject)

protected:
    explicit TGuest(const UnicodeString& AName) : FName(AName) {}
    ~TGuest() override { std::cout << "  " << FName << " has left\n"; }

private:
    UnicodeString FName;
};

const TClassRec TGuest::ClassRec = DescribeClass<TGuest>(u"TGuest", {.Unit = u"Hello"});

void ShowText() {
    const UnicodeString Name = "Zoë";
    UnicodeString Copy = Name;
    const int Sharing = Name.RefCount();
    Copy[0] = u'C';
    std::cout << Format("Text: %s in capitals is %s; %d handles shared it until one became %s\n",
                        {Name, AnsiUpperCase(Name), Sharing, Copy});
    std::cout << Format("Numbers: |%8.3f|%-6d|%.4x|\n", {3.14159265, 42, 48879});
}

void ShowErrors() {
    try {
        std::cout << Format("%d", {u"not a number"});
    } catch (const EConvertError& E) {
        std::cout << "Errors: " << UnicodeString(E.ClassName()) << ": " << E.Message() << '\n';
    }
}

void ShowLife() {
    std::cout << "Objects:\n";
    const Ref<IQzObject> Stays = TGuest::Create(u"the guest that is referred to until the end");
    { const Ref<IQzObject> Passing = TGuest::Create(u"the passing guest"); }
    TGuest::Create(u"the guest that nobody referred to, sent away by Free")->Free();
}

void ShowThreads() {
    const Ref<IQzSimpleEvent> Done = QzRunThreaded([](IQzSimpleEvent*) {
        QzSetThreadName(u"worker");
        const UnicodeString Worker = QzGetThreadName();
        QzRunInMainThread([&] { std::cout << "Threads: the main thread speaks for the " << Worker << '\n'; },
                          true);
    });
    while (Done->WaitFor(0) != wrSignaled)
        TThread::CheckSynchronize(10);
}

} // namespace

int main(int ACount, char**) {
    if (ACount > 1) {
        std::cerr << "hello: takes no arguments\n";
        return 2;
    }
    std::cout << Format("QzCommon %s, day %d of the calendar\n", {Version(), static_cast<int>(Date())});
    ShowText();
    ShowErrors();
    ShowThreads();
    ShowLife();
    return 0;
}
