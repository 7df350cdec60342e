#include <gtest/gtest.h>

#include <cstdlib>

#include "tests/common/uQzTypes/registry/Types.h"
#include "tests/support/Message.h"
#include "tests/support/Rows.h"
#include <qz/common/uQzDateTimeUtils/CalendarTypes.h>
#include <qz/runtime/lists/StringList.h>
#include <qz/runtime/text/NumberText.h>
#include <qz/runtime/values/VariantArray.h>
#include <qz/runtime/values/WordBool.h>

namespace qz {
namespace {

constexpr std::u16string_view cUnit = u"uFoo";
constexpr auto cTastes = EnumItems({u"tsSweet", u"tsSour"});
constexpr TMethodInfo cFruitMethods[] = {Method<&TFruitList::First>(u"First")};
constexpr TMethodInfo cNodeMethods[] = {Method<&TNodeList::First>(u"First")};
constexpr TMethodInfo cHiddenMethods[] = {Method<&THiddenList::First>(u"First")};

QZ_REGISTER_TYPES(TTaste, TFruit, TBasket, TFruits, TFruitList, TNodeList, TFruitArray);

// Names, kinds and codes as one row of text.
UnicodeString RowOf(const TQzTypeInfo& AInfo) {
    UnicodeString Result = IntToStr(static_cast<int>(AInfo.TypeKind())) + u' ' + IntToStr(AInfo.VarType()) +
        u' ' + QzSchemaDataType[static_cast<std::size_t>(AInfo.SchemaType())] + u':';
    for (const UnicodeString& Name : AInfo.SchemaNames())
        Result += u' ' + Name;
    return Result;
}

TQzTypeInfo* ByName(std::u16string_view AName, TQzTypeNameType AType = tntSchemaName) {
    return TQzTypes::GetTypeInfo(AName, AType);
}

} // namespace

constinit const TTypeInfo TTypeDescription<TTaste>::Info = DescribeEnum<TTaste>(u"TTaste", cUnit, cTastes);
constinit const TTypeInfo TTypeDescription<TFruit>::Info = DescribeRecord<TFruit>(u"TFruit", cUnit);
constinit const TTypeInfo TTypeDescription<TFruitArray>::Info =
    DescribeOf<TFruitArray, TFruit>(tkDynArray, u"TArray<uFoo.TFruit>", cUnit);
constinit const TTypeInfo TTypeDescription<TIntPair>::Info = [] {
    TTypeInfo Info = DescribeOf<TIntPair, int>(tkArray, u"TIntPair", cUnit);
    Info.IsPublic = false;
    return Info;
}();
constinit const TClassRec TBasket::ClassRec = DescribeClass<TBasket>(u"TBasket", {.Unit = cUnit});
constinit const TClassRec TFruits::ClassRec = DescribeClass<TFruits>(u"TFruits", {.Unit = cUnit});
constinit const TClassRec TFruitList::ClassRec =
    DescribeClass<TFruitList>(u"TFruitList", {.Unit = cUnit, .Methods = cFruitMethods});
constinit const TClassRec TNodeList::ClassRec =
    DescribeClass<TNodeList>(u"TNodeList", {.Unit = cUnit, .Methods = cNodeMethods});
constinit const TClassRec THiddenList::ClassRec =
    DescribeClass<THiddenList>(u"THiddenList", {.Unit = cUnit, .Methods = cHiddenMethods, .IsPublic = false});

namespace {

// The fixed population: kind, code, schema type and names, with the names that the kind adds.
TEST(TypeRegistry, KnowsTheBasicTypes) {
    const auto Types = Rows(
        u"System.Byte => 1 17 unsignedbyte: unsignedByte",
        u"System.Word => 2 18 unsignedshort: unsignedShort",
        u"System.Cardinal => 3 19 unsignedint: unsignedInt nonnegativeinteger",
        u"System.UInt64 => 4 20 unsignedlong: unsignedLong", u"System.ShortInt => 5 16 byte: byte",
        u"System.SmallInt => 6 2 short: short", u"System.Integer => 7 3 int: int",
        u"System.Int64 => 8 20 long: long", u"System.Single => 9 5 float: float",
        u"System.Double => 10 5 double: double", u"System.Extended => 11 5 decimal: decimal decmimal",
        u"System.Boolean => 18 11 boolean: boolean", u"System.WordBool => 18 11 boolean: boolean",
        u"System.string => 15 258 string: string any anyuri",
        u"System.AnsiString => 16 256 string: string base64Binary",
        u"System.WideString => 17 8 string: string", u"System.Char => 14 8 string: string",
        u"System.AnsiChar => 13 256 string: string", u"System.TDate => 21 7 date: date",
        u"System.TTime => 22 7 time: time", u"System.TDateTime => 23 7 datetime: dateTime",
        u"uQzDateTimeUtils.TQzUTCDate => 21 7 date: date", u"uQzDateTimeUtils.TQzUTCTime => 22 7 time: time",
        u"uQzDateTimeUtils.TQzUTCDateTime => 23 7 datetime: dateTime",
        u"System.RawByteString => 16 256 base64binary: base64Binary hexBinary",
        u"uQzTypes.QzXMLString => 17 8 _complexType_: xml string",
        u"uQzTypes.QzJSONString => 17 8 _complexType_: json string",
        u"System.TGUID => 27 36 string: guid System_GUID TGUID",
        u"System.TArray<System.TObject> => 26 8192 _arrayofcomplextype_: "
        u"ArrayOfObject ArrayOfSystem_Object System_Array_System_Object",
        u"System.TStringDynArray => 26 8192 _arrayofsimpletype_: "
        u"ArrayOfString StringArray System_StringDynArray",
        u"System.TIntegerDynArray => 26 8192 _arrayofsimpletype_: ArrayOfInt IntArray System_IntegerDynArray",
        u"System.TBooleanDynArray => 26 8192 _arrayofsimpletype_: ArrayOfBoolean System_BooleanDynArray",
        u"uQzTypes.TDateTimeDynArray => 26 8192 _arrayofsimpletype_: ArrayOfDateTime uQzTypes_DateTimeDynArray",
        u"System.Variant => 24 12 _complexType_: any",
        u"System.TValue => 27 36 _complexType_: any System_Value TValue",
        u"System.TObject => 28 13 _complexType_: System_Object TObject");
    for (const auto& Row : Types) {
        const TQzTypeInfo* const Info = ByName(Row[0], tntQualifiedName);
        ASSERT_NE(Info, nullptr) << Row[0];
        EXPECT_EQ(RowOf(*Info), Row[1]) << Row[0];
        EXPECT_EQ(Info->FullName(), Row[0]);
    }
    for (int Index = 1; Index <= 23; ++Index) { // the type of a kind is of that kind, where there is one
        const auto Kind = static_cast<TQzTypeKind>(Index);
        const TQzTypeKind Found = TQzTypes::GetTypeInfo(Kind)->TypeKind();
        EXPECT_EQ(Found,
                  Kind == rtkChar                                ? rtkWChar
                      : Kind == rtkEnumeration || Kind == rtkSet ? rtkVariant
                                                                 : Kind);
    }
}

TEST(TypeRegistry, VariantAndValueStandInSevenLists) {
    const std::pair<TTypeKind, std::u16string_view> Lists[] = {
        {tkInteger, u"7 3 unsignedbyte: int"},
        {tkInt64, u"8 20 unsignedlong: long"},
        {tkFloat, u"11 7 float: datetime"},
        {tkString, u"15 258 string: string"},
        {tkLString, u"16 256 base64binary: base64binary"},
        {tkEnumeration, u"19 11 boolean: boolean"},
        {tkClass, u"28 7 _complexType_: _complexType_"}};
    for (const PTypeInfo Type : {TypeInfo<Variant>(), TypeInfo<TValue>()}) {
        TQzTypeInfo* const Own = TQzTypes::GetTypeInfo(Type);
        for (const auto& [Kind, Expected] : Lists) {
            TQzTypeInfo* const Found = TQzTypes::FindByFullName(Own->FullName(), {Kind});
            ASSERT_NE(Found, nullptr);
            EXPECT_TRUE(RowOf(*Found).View().starts_with(Expected))
                << RowOf(*Found) << " " << Own->FullName();
            EXPECT_TRUE(Found->IsVirtual() && Found != Own && Found->TypeRec() == Own->TypeRec());
            EXPECT_EQ(Found->SchemaName(u"xs"), u"any");
        }
    }
    TQzTypeInfo* const Fruit = TQzTypes::GetTypeInfo(TypeInfo<TFruit>());
    TQzTypeInfo* const Number = Fruit->VirtualType(xsdLong);
    EXPECT_EQ(RowOf(*Number), u"8 20 long: uFoo_Fruit TFruit");
    EXPECT_EQ(Fruit->VirtualType(xsdUnsignedLong), Number);
    EXPECT_EQ(ByName(u"Variant", tntTypeName)->GetMainTypeKind(), mtkInteger);
}

TEST(TypeRegistry, SchemaNamesFollowFromQualifiedNames) {
    for (const auto& Row :
         Rows(u"uFoo.TBar => uFoo_Bar", u"uFoo.Bar => uFoo_Bar", u"uFoo.Thing => uFoo_hing", u"Item => tem",
              u"a.b.ITem => a_b_Tem", u"TFoo.TBar => TFoo_Bar", u"a..b => a_b", u"u.No_Name => Integer",
              u"System.Generics.Collections.TDictionary<System.string,System.Integer> => "
              u"System_Generics_Collections_Dictionary_string_int",
              u"TDictionary<string,TList<Integer>> => Dictionary_string_List_nteger",
              u"TOf<uFoo.TFruit> => Of_uFoo_Fruit", u"U.T => U_"))
        EXPECT_EQ(TQzTypes::CalculateSchemaName(TypeInfo<int>(), Row[0]), Row[1]) << Row[0];
    EXPECT_EQ(Message([] { TQzTypes::CalculateSchemaName(nullptr, u"a_b"); }),
              u"The Q-Seperator character may not be used in the typename (a_b)");
    UnicodeString Qualified, Short;
    for (const auto& Row :
         Rows(u"xs:System_DateTime => System.TDateTime => TDateTime", u"int => Tint => Tint",
              u"a_b:c:d => Tc:d => Tc:d", u"a_b_ => a.b.T => T", u"_ => .T => T")) {
        TQzTypes::DecodeQName(Row[0], u'_', Qualified, Short);
        EXPECT_EQ(Qualified + u" " + Short, Row[1] + u" " + Row[2]);
    }
    const UnicodeString Long(1000, u'x');
    TQzTypes::DecodeQName(u"u-" + Long, u'-', Qualified, Short);
    EXPECT_EQ(Qualified, u"u.T" + Long);
}

TEST(TypeRegistry, EachKindOfTypeHasItsNames) {
    const std::pair<PTypeInfo, std::u16string_view> Types[] = {
        {TypeInfo<TTaste>(), u"19 3 int: uFoo_Taste"},
        {TypeInfo<TFruit>(), u"27 13 _complexType_: uFoo_Fruit TFruit"},
        {TypeInfo<TFruits>(), u"28 13 _complexType_: uFoo_Fruits TFruits"},
        {TypeInfo<TFruitArray>(), u"26 13 _arrayofcomplextype_: ArrayOfUFoo_Fruit uFoo_Array_uFoo_Fruit"},
        {TypeInfo<TIntPair>(), u"25 13 _arrayofsimpletype_: ArrayOfInt IntPair"},
        {TypeInfo<TFruitList>(), u"28 13 _arrayofcomplextype_: uFoo_FruitList TFruitList"},
        {TypeInfo<TNodeList>(), u"28 13 _arrayofcomplextype_: uFoo_NodeList TNodeList"},
        {TypeInfo<THiddenList>(), u"28 13 _arrayofsimpletype_: ListOfInt HiddenList THiddenList"},
        {TypeInfo<TStringList>(), u"28 13 _arrayofsimpletype_: StringList System_StringList TStringList"},
        {TypeInfo<void*>(), u"30 13 _complexType_: System_Pointer"}};
    for (const auto& [Type, Expected] : Types)
        EXPECT_EQ(RowOf(*TQzTypes::GetTypeInfo(Type)), Expected);
    TQzTypeInfo* const Nodes = TQzTypes::GetTypeInfo(ClassOf<TNodeList>());
    EXPECT_EQ(Nodes->ArrElmTypeInfo(), Nodes);
    EXPECT_EQ(ByName(u"TStringList", tntTypeName)->ArrElmTypeInfo(), TQzTypes::GetTypeInfo(rtkString));
    EXPECT_EQ(TQzTypes::GetTypeInfo(TypeInfo<TFruit>())->ArrElmTypeInfo(), nullptr);
    EXPECT_TRUE(TQzTypes::GetTypeInfo(TypeInfo<TFruitArray>())->IsGeneric());
    EXPECT_EQ(Message([] { TQzTypes::AddRttiTypeRec({}, rtkByte, 0, xsdByte, {}); }), u"No RTTI Info found!");
}

TEST(TypeRegistry, FindsByEachName) {
    TQzTypes::GetTypeInfo(TypeInfo<int>());
    EXPECT_EQ(TQzTypes::FindBySchemaName(u"xs:INT", {tkInteger})->FullName(), u"System.Integer");
    for (const auto& Row :
         Rows(u"string => System.AnsiChar", u"uFoo_Taste => uFoo.TTaste", u"TFruit => uFoo.TFruit",
              u"q:uFoo-Basket => uFoo.TBasket", u"base64Binary => System.AnsiString",
              u"System_DateTime => System.TDateTime", u"xml => -", u"nosuch => -"))
        EXPECT_EQ(ByName(Row[0]) == nullptr ? u"-" : ByName(Row[0])->FullName(), Row[1]) << Row[0];
    EXPECT_EQ(ByName(u"uFoo.TBasket", tntQualifiedName), TQzTypes::GetTypeInfo(ClassOf<TBasket>()));
    EXPECT_EQ(ByName(u"TBasket", tntTypeName), TQzTypes::GetTypeInfo(ClassOf<TBasket>()));
    EXPECT_EQ(TQzTypes::GetTypeInfo(u"boolean", tntSchemaName, false, mtkDateTime), nullptr);
    EXPECT_EQ(TQzTypes::GetTypeInfo(u"any", tntSchemaName, false, mtkStructure)->FullName(),
              u"System.TValue");
    EXPECT_EQ(TQzTypes::GetTypeKind(u"nosuch", tntSchemaName, rtkVariant), rtkVariant);
    EXPECT_EQ(TQzTypes::GetVarType(u"xs:short", tntSchemaName, varNull), varSmallint);
    EXPECT_EQ(TQzTypes::GetVarType(u"", tntTypeName, varNull), varNull);
    EXPECT_EQ(Message([] { TQzTypes::GetTypeInfo(u"", tntSchemaName, true); }),
              u"QzFindQType: Failed to get the QzTypeInfo. No Name specified!");
    EXPECT_EQ(Message([] { TQzTypes::GetTypeInfo(u"nosuch", tntTypeName, true); }),
              u"QzFindQType: Failed to get the QzTypeInfo for nosuch!");
    EXPECT_EQ(TQzTypes::GetTypeInfo(TClass()), nullptr);
    EXPECT_EQ(TQzTypes::VarTypeInfo(Variant(u"x"))->ShortName(), u"WideString");
    EXPECT_EQ(TQzTypes::VarTypeInfo(VarArrayCreate({0, 1}, varInteger))->ShortName(), u"TIntegerDynArray");
    EXPECT_EQ(TQzTypes::VarTypeInfo(VarArrayCreate({0, 1}, varByte))->ShortName(), u"TBytes");
    EXPECT_EQ(TQzTypes::VarTypeInfo(Variant())->ShortName(), u"Variant");
}

TEST(TypeRegistry, PrefixesAndAliases) {
    EXPECT_EQ(TQzTypes::GetTypeInfo(rtkLongInt)->SchemaName(u"xs"), u"xs:int");
    EXPECT_EQ(TQzTypes::GetTypeInfo(rtkExtended)->SchemaName(u"xs"), u"decimal");
    EXPECT_EQ(TQzTypes::GetTypeInfo(rtkAString)->SchemaName(u"xs"), u"string");
    const PTypeInfo Type = TypeInfo<TBasket>();
    TQzTypes::RegisterTypeAlias(Type, {u"my.Crate", u"TBASKET"});
    TQzTypes::RegisterTypeAlias(TypeInfo<TFruit>(), u"\u00C4pfel");
    TQzTypes::RegisterTypeAlias(TypeInfo<TFruit>(), u"\u00E4pfel"); // takes the place of the first
    EXPECT_EQ(
        std::ranges::count_if(TQzTypes::GetTypeInfo(TypeInfo<TFruit>())->SchemaNames(),
                              [](const UnicodeString& AName) { return AName.View().ends_with(u"pfel"); }),
        1);
    TQzTypeInfo* const Info = TQzTypes::GetTypeInfo(Type);
    EXPECT_EQ(RowOf(*Info), u"28 13 _complexType_: my_Crate TBASKET uFoo_Basket");
    EXPECT_TRUE(Info->HasCustomSchemaName());
    EXPECT_EQ(Info->SchemaName(u"xs"), u"my_Crate");
    Info->SetDefaultSchemaName(u"uFoo_Basket");
    Info->SetDefaultSchemaName(u"crate");
    EXPECT_EQ(RowOf(*Info), u"28 13 _complexType_: crate uFoo_Basket my_Crate TBASKET");
    for (const std::u16string_view Name : {u"x:MY_CRATE", u"tBasket", u"Crate", u"ufoo_basket"})
        EXPECT_EQ(ByName(Name), Info) << UnicodeString(Name);
    TQzTypes::RegisterTypeAlias(nullptr, u"nothing");
    EXPECT_EQ(ByName(u"nothing"), nullptr);
}

TEST(TypeRegistry, SerializersComeFromTheNearestClass) {
    const auto Block = [] { return std::malloc(1); };
    TQzTypeInfo* const Fruits = TQzTypes::GetTypeInfo(ClassOf<TFruits>());
    EXPECT_EQ(TQzTypes::FindTypeRec(TypeInfo<TFruits>())->Parent, TQzTypes::FindTypeRec(TypeInfo<TBasket>()));
    EXPECT_EQ(TQzTypes::FindSerializers(Fruits, XML), nullptr);
    void* const Default = Block();
    TQzTypes::RegisterTypeSerializers(nullptr, XML, Default);
    EXPECT_EQ(TQzTypes::FindSerializers(Fruits, XML), Default);
    EXPECT_EQ(TQzTypes::FindSerializers(nullptr, XML), Default);
    EXPECT_EQ(TQzTypes::FindSerializers(nullptr, JSON), nullptr);
    TQzTypes::RegisterTypeSerializers(TypeInfo<TBasket>(), XML, Block());
    void* const OfBasket = Block();
    TQzTypes::RegisterTypeSerializers(TypeInfo<TBasket>(), XML, OfBasket); // releases the first
    for (void* const Same : {OfBasket, static_cast<void*>(nullptr)})       // releases nothing
        TQzTypes::RegisterTypeSerializers(TypeInfo<TBasket>(), XML, Same);
    EXPECT_EQ(FindType(u".TBasket"), nullptr);
    EXPECT_EQ(TQzTypes::FindSerializers(Fruits->VirtualType(xsdInt), XML), OfBasket);
    EXPECT_EQ(TQzTypes::FindSerializers(TQzTypes::GetTypeInfo(TypeInfo<TFruit>()), XML), Default);
    EXPECT_THROW(TQzTypes::FindSerializers(Fruits, static_cast<TQzDataSerializationFormatType>(5)),
                 EAssertionFailed);
}

} // namespace
} // namespace qz
