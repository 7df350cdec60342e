#include <qz/common/uQzTypes/registry/detail/Population.h>

#include <qz/common/uQzDateTimeUtils/CalendarTypes.h>
#include <qz/common/uQzTypes/registry/QzTypes.h>
#include <qz/common/uQzTypes/registry/detail/TypeStore.h>
#include <qz/platform/Fork.h>
#include <qz/runtime/values/WordBool.h>

namespace qz::detail {
namespace {

constexpr TPopulationRow cBeforeVariant[] = {
    {TypeInfo<std::uint8_t>, rtkByte, varByte, xsdUnsignedByte, {u"unsignedByte"}},
    {TypeInfo<std::uint16_t>, rtkWord, varWord, xsdUnsignedShort, {u"unsignedShort"}},
    {TypeInfo<std::uint32_t>,
     rtkLongWord,
     varLongWord,
     xsdUnsignedInt,
     {u"unsignedInt", u"nonnegativeinteger"}},
    {TypeInfo<std::uint64_t>, rtkUInt64, varInt64, xsdUnsignedLong, {u"unsignedLong"}},
    {TypeInfo<std::int8_t>, rtkShortInt, varShortInt, xsdByte, {u"byte"}},
    {TypeInfo<std::int16_t>, rtkSmallInt, varSmallint, xsdShort, {u"short"}},
    {TypeInfo<std::int32_t>, rtkLongInt, varInteger, xsdInt, {u"int"}},
    {TypeInfo<std::int64_t>, rtkInt64, varInt64, xsdLong, {u"long"}},
    {TypeInfo<float>, rtkSingle, varDouble, xsdFloat, {u"float"}},
    {TypeInfo<double>, rtkDouble, varDouble, xsdDouble, {u"double"}},
    {TypeInfo<Extended>, rtkExtended, varDouble, xsdDecimal, {u"decimal"}},
    {TypeInfo<bool>, rtkBoolean, varBoolean, xsdBoolean, {u"boolean"}},
    {TypeInfo<WordBool>, rtkBoolean, varBoolean, xsdBoolean, {u"boolean"}},
    {TypeInfo<UnicodeString>, rtkString, varUString, xsdString, {u"string", u"any", u"anyuri"}},
    {TypeInfo<AnsiString>, rtkAString, varString, xsdString, {u"string"}},
    {TypeInfo<WideString>, rtkWString, varOleStr, xsdString, {u"string"}},
    {TypeInfo<char16_t>, rtkWChar, varOleStr, xsdString, {u"string"}},
    {TypeInfo<char>, rtkAChar, varString, xsdString, {u"string"}},
    {TypeInfo<TDate>, rtkDate, varDate, xsdDate, {u"date"}},
    {TypeInfo<TTime>, rtkTime, varDate, xsdTime, {u"time"}},
    {TypeInfo<TDateTime>, rtkDatetime, varDate, xsdDateTime, {u"dateTime"}},
    {TypeInfo<TQzUTCDate>, rtkDate, varDate, xsdDate, {u"date"}},
    {TypeInfo<TQzUTCTime>, rtkTime, varDate, xsdTime, {u"time"}},
    {TypeInfo<TQzUTCDateTime>, rtkDatetime, varDate, xsdDateTime, {u"dateTime"}},
    {TypeInfo<RawByteString>, rtkAString, varString, xsdBase64Binary, {u"base64Binary", u"hexBinary"}},
    {TypeInfo<QzXMLString>, rtkWString, varOleStr, xsdComplexType, {u"xml"}},
    {TypeInfo<QzJSONString>, rtkWString, varOleStr, xsdComplexType, {u"json"}},
    {TypeInfo<TGUID>, rtkRecord, varRecord, xsdString, {u"guid"}},
    {TypeInfo<TObjectDynArray>, rtkDynArray, varArray, xsdArrayOfComplexType, {u"ArrayOfObject"}},
    {TypeInfo<TStringDynArray>,
     rtkDynArray,
     varArray,
     xsdArrayOfSimpleType,
     {u"ArrayOfString", u"StringArray"}},
    {TypeInfo<TIntegerDynArray>, rtkDynArray, varArray, xsdArrayOfSimpleType, {u"ArrayOfInt", u"IntArray"}},
    {TypeInfo<TBooleanDynArray>, rtkDynArray, varArray, xsdArrayOfSimpleType, {u"ArrayOfBoolean"}},
    {TypeInfo<TDateTimeDynArray>, rtkDynArray, varArray, xsdArrayOfSimpleType, {u"ArrayOfDateTime"}}};

// Both stand for values of any type, and so have a virtual type in each list that simple values go to.
constexpr TPopulationRow cOfAnyType[] = {
    {TypeInfo<Variant>, rtkVariant, varVariant, xsdComplexType, {u"any"}},
    {TypeInfo<TValue>, rtkRecord, varRecord, xsdComplexType, {u"any"}}};

// Constant-initialised, so that parts of other source files may arrive at any time.
constinit TTypeStore::TParts GParts{};

TTypeEntry& AddRow(TTypeStore& AStore, const TPopulationRow& ARow) {
    std::vector<UnicodeString> Names;
    for (const std::u16string_view Name : ARow.Names)
        if (!Name.empty())
            Names.emplace_back(Name);
    TTypeRequest Request = RequestOf(ARow.Type());
    Request.Kind = ARow.Kind;
    Request.VarType = ARow.VarType;
    Request.SchemaType = ARow.SchemaType;
    Request.Names = Names;
    return AStore.AddByKinds(std::move(Request));
}

// In each list the schema type is that of the first kind that goes there, name and code are those of the
// last.
void AddVirtualTypes(TTypeStore& AStore, TTypeEntry& AEntry) {
    std::array<TTypeRequest, cTypeKindCount> Requests{};
    for (auto Index = static_cast<std::uint8_t>(rtkByte); Index < static_cast<std::uint8_t>(rtkVariant);
         ++Index) {
        const auto Kind = static_cast<TQzTypeKind>(Index);
        TQzSchemaDataType Type;
        TQzKindConversions::ToSchemaType(Kind, &Type);
        const TTypeKind List = TTypeStore::VirtualKindOf(Type);
        TTypeRequest& Request = Requests[static_cast<std::size_t>(List)];
        if (Request.Handle == nullptr) {
            Request = RequestOf(AEntry.Info->TypeInfo());
            Request.Kind = TQzKindConversions::ToTypeKind(List);
            Request.VirtualKind = List;
            Request.Parent = &AEntry;
            Request.FinalSchemaType = Type;
        }
        Request.FinalName = QzSchemaDataType[static_cast<std::size_t>(Type)];
        Request.VarType = TQzKindConversions::ToVarType(Kind);
    }
    for (const TTypeRequest& Each : Requests)
        if (Each.Handle != nullptr)
            AStore.Add(Each);
}

} // namespace

constinit std::atomic<TTypeStore*> TTypeStore::GInstance{nullptr};

// Guards the parts and the publication of the store.
std::mutex& TTypeStore::CreationLock() {
    static auto* const Lock = new std::mutex;
    return *Lock;
}

// No lock is held while the store is filled, since that loads libraries, whose start code may look up types.
// Two threads may both fill one; the first to be published stays.
TTypeStore& TTypeStore::Create() {
    std::unique_ptr<TTypeStore> Fresh(new TTypeStore);
    TParts Known;
    {
        const std::scoped_lock Hold(CreationLock());
        Known = GParts;
    }
    Fresh->Populate(Known);
    TTypeStore* Store;
    {
        const std::scoped_lock Hold(CreationLock());
        Store = GInstance.load(std::memory_order_acquire);
        if (Store != nullptr)
            return *Store;
        Store = Fresh.release();
        GInstance.store(Store, std::memory_order_release);
        for (std::size_t Place = 0; Place < Known.size(); ++Place)
            Known[Place] = GParts[Place].data() != Known[Place].data() ? GParts[Place]
                                                                       : std::span<const TPopulationRow>();
    }
    for (const std::span<const TPopulationRow> Late : Known)
        for (const TPopulationRow& Row : Late)
            AddRow(*Store, Row);
    return *Store;
}

// Of a store that was not published. References to its types exist nowhere.
TTypeStore::~TTypeStore() {
    for (TTypeEntry* Entry : FTypesFirst)
        while (Entry != nullptr)
            delete std::exchange(Entry, static_cast<TTypeEntry*>(Entry->Next.load()));
}

void TTypeStore::Populate(const TParts& AParts) {
    for (const TPopulationRow& Row : cBeforeVariant)
        AddRow(*this, Row);
    for (const TPopulationRow& Row : cOfAnyType)
        AddVirtualTypes(*this, AddRow(*this, Row));
    for (const std::span<const TPopulationRow> Part : AParts)
        for (const TPopulationRow& Row : Part)
            AddRow(*this, Row);
}

TPopulationPart::TPopulationPart(TPlace APlace, std::span<const TPopulationRow> ARows) {
    TTypeStore* Store;
    {
        const std::scoped_lock Hold(TTypeStore::CreationLock());
        GParts[APlace] = ARows;
        Store = TTypeStore::Existing();
    }
    if (Store != nullptr)
        for (const TPopulationRow& Row : ARows)
            AddRow(*Store, Row);
}

// The two locks, of which the second is there with the store.
struct TTypeStoreFork {
    static void Begin() {
        TTypeStore::CreationLock().lock();
        if (TTypeStore* const Store = TTypeStore::Existing())
            Store->FTypesLock.lock();
    }
    static void End() {
        if (TTypeStore* const Store = TTypeStore::Existing())
            Store->FTypesLock.unlock();
        TTypeStore::CreationLock().unlock();
    }
};

namespace {

[[maybe_unused]] const bool GIsWatched = [] {
    platform::AroundFork(platform::TForkRank::TypeRegistry, &TTypeStoreFork::Begin, &TTypeStoreFork::End,
                         &TTypeStoreFork::End);
    return true;
}();

} // namespace

} // namespace qz::detail
