#include <qz/common/uQzClasses/DistinguishedName.h>

#include <random>

#include <gtest/gtest.h>

#include "tests/support/Message.h"
#include "tests/support/Rows.h"
#include <qz/runtime/lists/StringList.h>
#include <qz/runtime/text/NumberText.h>

namespace qz {
namespace {

// Some rows are the examples of RFC 4514.
TEST(DistinguishedName, IsReadAndWritten) {
    for (const auto& Row :
         Rows(u"CN=Anna,O=Sales => CN=Anna|O=Sales => CN=Anna,O=Sales", u"CN = Anna => CN=Anna => CN=Anna",
              u"UID=jsmith,DC=example,DC=net => UID=jsmith|DC=example|DC=net => UID=jsmith,DC=example,DC=net",
              u"CN=James \\\"Jim\\\" Smith\\, III,DC=net => CN=James \"Jim\" Smith, III|DC=net => "
              u"CN=James \"Jim\\\" Smith\\, III,DC=net",
              u"CN=Before\\0dAfter,DC=x => CN=Before\rAfter|DC=x => CN=Before\\0DAfter,DC=x",
              u"1.3.6.1=#04024869 => 1.3.6.1=#04024869 => 1.3.6.1=\\#04024869",
              u"CN=a\\,b => CN=a,b => CN=a\\,b", u"CN=\"a,b\" => CN=a,b => CN=a\\,b",
              u"CN=\"a,,b\",O=c => CN=a,|b\",O=c => CN=a\\,,b\",O=c",
              u"CN=\"\t\1a\"b,O=c => CN=ab|O=c => CN=ab,O=c", u"CN=a\"b\",O=c => CN=ab|O=c => CN=ab,O=c",
              u"CN=\"a\\2C,b\" => CN=a,,b => CN=a\\,\\,b", u"CN=a\\0Ab => CN=a\nb => CN=a\\0Ab",
              u"CN=a\\00b => CN=a00b => CN=a00b", u"CN=\\zza\\4x => CN=zza4x => CN=zza4x",
              u"CN=\\E9\\41 => CN=éA => CN=éA", u"CN=a\\\\,O=b => CN=a\\|O=b => CN=a\\\\,O=b",
              u"CN=\\\\,O=b => CN=\\|O=b => CN=\\\\,O=b", u"CN=\\ \\#a \\  => CN= #a   => CN=\\ \\#a\\ \\ ",
              u"CN=a  b => CN=a  b => CN=a  b", u"CN=a \\+b => CN=a +b => CN=a +b",
              u"a==b=c => a=b=c => a=b\\=c", u"text => text= => text=",
              u",a=1,,,b=2, => ,a=1|b=2 => ,a=1,b=2", u"= => = => =")) {
        const TQzDN Name = Row[0];
        EXPECT_EQ(Name.Text(u"|"), Row[1]);
        EXPECT_EQ(UnicodeString(Name), Row[2]);
    }
    EXPECT_EQ(TQzDN(u"").Count(), 0);
}

TEST(DistinguishedName, AnEndThatComesTooEarlyLeavesTheContent) {
    TQzDN Name = u"a=1";
    for (const std::u16string_view Text :
         {u"CN=a\\", u"CN=a\\4", u"CN=\"a", u"CN=\"", u"CN=\"a\\", u"b=2,a=\\"})
        EXPECT_EQ(Raised([&] { Name.ParseDN(Text); }), u"EQzTextParserEOF: Unexpected EOF");
    EXPECT_EQ(Name.Text(u"|"), u"a=1");
}

TEST(DistinguishedName, IsAListOfEntries) {
    const TQzDN Name = u"OU=a,CN=x,OU=b";
    EXPECT_EQ(Name.Values(u"ou"), u"a.b");
    EXPECT_EQ(Name.ValuesFromName(u"O", u'/'), u"");
    TQzDN More = Name + TQzRDN(u"C", u"D,E");
    EXPECT_EQ(More.Delete(0), 3);
    EXPECT_EQ(More.Delete(3), 3);
    More.SetName(0, u"DC");
    TStringList Lines;
    Lines.Add(u" kept = as it is");
    More.Save(Lines);
    EXPECT_EQ(TQzDN(Lines).Text(u"|"), u"kept=as it is|DC=x|OU=b|C=D,E");
    EXPECT_EQ(Name.Text(u"|"), u"OU=a|CN=x|OU=b");
}

// Equality, order and hash agree, with few entries and with many.
TEST(DistinguishedName, ComparesWithoutOrderAndCase) {
    EXPECT_EQ(TQzDN(u"a=1,b=2"), u"B=2,A=1");
    EXPECT_EQ(TQzDN(u"CN=Müller"), u"cn=MÜLLER");
    EXPECT_NE(TQzDN(u"a=1,a=1"), u"a=1,b=2");
    for (const char16_t* Other : {u"CN=adm\u0131n", u"CN=admin\u0301", u"CN=admi\uFF4E"})
        EXPECT_NE(TQzDN(u"CN=admin"), Other);
    EXPECT_NE(TQzDN(u"CN=s"), u"CN=\u017F");
    EXPECT_LT(TQzDN(u"a=1"), UnicodeString(u"a=2"));
    EXPECT_NE(TQzDN(u"a=1,b=2"), u"a=1,a=1");
    EXPECT_EQ(TQzDN() + TQzRDN(u"a=b", u"c"), TQzDN() + TQzRDN(u"A", u"B=C")) << "their lines are the same";
    std::mt19937 Random(3);
    for (int Round = 0; Round < 400; ++Round) {
        TQzDN Name, Shuffled;
        for (std::size_t Left = Round < 300 ? 1 + Random() % 4 : 63 + Random() % 4; Left > 0; --Left)
            Name.Add(Random() % 2 == 0 ? u"a" : u"A", IntToStr(Random() % 3));
        std::vector<TQzRDN> Entries(Name.begin(), Name.end());
        std::ranges::shuffle(Entries, Random);
        for (const TQzRDN& Entry : Entries)
            Shuffled.Add(Entry.FName, Entry.FValue);
        EXPECT_TRUE(Name == Shuffled && (Name <=> Shuffled) == 0 && Name.Hash() == Shuffled.Hash());
        Shuffled.SetValue(0, u"other");
        EXPECT_TRUE(Name != Shuffled && (Name < Shuffled) != (Shuffled < Name) &&
                    Name.Hash() != Shuffled.Hash());
    }
}

} // namespace
} // namespace qz
