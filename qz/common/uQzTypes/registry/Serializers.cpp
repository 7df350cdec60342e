#include <cstdlib>

#include <qz/common/uQzTypes/registry/QzTypes.h>
#include <qz/common/uQzTypes/registry/detail/TypeStore.h>
#include <qz/runtime/base/StringUtils.h>
#include <qz/runtime/objects/Exceptions.h>
#include <qz/runtime/text/NumberText.h>

namespace qz {
namespace {

std::size_t SlotOf(TQzDataSerializationFormatType AFormat) {
    const auto Result = static_cast<std::size_t>(AFormat);
    if (Result >= std::size(QzDataSerializationFormatType))
        detail::RaiseAssertion(u"The format " + IntToStr(static_cast<int>(AFormat)) + u" is unknown");
    return Result;
}

} // namespace

void TQzTypes::RegisterTypeAlias(PTypeInfo ATypeInfo, const TStringDynArray& ANames) {
    TQzTypeInfo* const Info = GetTypeInfo(ATypeInfo);
    if (Info == nullptr)
        return;
    std::vector<UnicodeString> Names;
    for (const UnicodeString& Name : ANames)
        Names.push_back(StringReplace(Name, u".", std::u16string_view(cQzQSeperators, 1), {rfReplaceAll}));
    detail::TTypeStore::Instance().PutNamesFirst(*Info, Names, TNameCase::Ignored);
}

void TQzTypes::RegisterTypeSerializers(PTypeInfo ATypeInfo, TQzDataSerializationFormatType AFormat,
                                       void* ASerializers) {
    const std::size_t Slot = SlotOf(AFormat);
    const TQzTypeInfo* const Info = GetTypeInfo(ATypeInfo == nullptr ? TypeInfo<TQzNilType>() : ATypeInfo);
    if (ASerializers == nullptr)
        return;
    void* const Old = detail::TTypeStore::EntryOf(*Info).Serializer[Slot].exchange(ASerializers);
    if (Old != ASerializers)
        std::free(Old);
}

void* TQzTypes::FindSerializers(TQzTypeInfo* AInfo, TQzDataSerializationFormatType AFormat) {
    const std::size_t Slot = SlotOf(AFormat);
    const auto OfChain = [Slot](const TQzTypeInfo& AStart) {
        void* Result = nullptr;
        for (PQzTypeRec Rec = AStart.TypeRec(); Rec != nullptr && Result == nullptr;
             Rec = Rec->Parent.load(std::memory_order_acquire))
            Result = Rec->Serializer[Slot].load(std::memory_order_acquire);
        return Result;
    };
    void* const Own = AInfo == nullptr ? nullptr : OfChain(*AInfo);
    if (Own != nullptr || (AInfo != nullptr && AInfo->ShortName() == u"TQzNilType"))
        return Own;
    return OfChain(*GetTypeInfo(TypeInfo<TQzNilType>()));
}

} // namespace qz
