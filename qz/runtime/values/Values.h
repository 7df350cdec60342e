// Values whose type is known at run time only.
#pragma once

#include <qz/runtime/values/ArrayTypes.h>
#include <qz/runtime/values/BasicTypes.h>
#include <qz/runtime/values/Currency.h>
#include <qz/runtime/values/EnumNames.h>
#include <qz/runtime/values/RawValues.h>
#include <qz/runtime/values/SubRange.h>
#include <qz/runtime/values/SystemDecimal.h>
#include <qz/runtime/values/SystemVariant.h>
#include <qz/runtime/values/Value.h>
#include <qz/runtime/values/VarTypes.h>
#include <qz/runtime/values/Variant.h>
#include <qz/runtime/values/VariantArray.h>
#include <qz/runtime/values/VariantConvert.h>
#include <qz/runtime/values/WordBool.h>
