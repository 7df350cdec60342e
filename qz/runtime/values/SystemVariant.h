// Variants as the system's own, for calls of OLE Automation. On a system without it each function raises
// EOSError.
//
//     VARIANT Argument;
//     VariantInit(&Argument);
//     VariantToSystem(VarArrayOf({1, u"two"}), &Argument);
//     Variant Back = VariantFromSystem(&Argument);
//     VariantClear(&Argument);
//
// Every type of OLE Automation survives a round trip, except records, which raise EVariantTypeCastError; so
// do arrays nested deeper than 100. All texts are passed as BSTR and come back as varOleStr. An 8-bit text is
// converted from its code page, except one in cNoCodePage: its bytes travel as they are, and a text of
// automation with an odd number of bytes comes back as such a one. Objects (varObject) raise
// EVariantTypeCastError. The system's own VT_INT, VT_UINT and VT_HRESULT come as varInteger, varLongWord and
// varError. References (VT_BYREF) are followed and their values copied.
//
// Threads: no other thread may change the values during a call.
#pragma once

#include <qz/runtime/values/Variant.h>

struct tagVARIANT;

namespace qz {

// ATarget holds a value of the system's already, at least an empty one, which is cleared. On failure it is
// unchanged.
QZ_API void VariantToSystem(const Variant& AValue, tagVARIANT* ATarget);
QZ_API Variant VariantFromSystem(const tagVARIANT* ASource);

} // namespace qz
