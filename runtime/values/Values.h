// Everything about values whose type is known at run time only.
#pragma once

#include "runtime/values/Currency.h"
#include "runtime/values/SystemDecimal.h"
#include "runtime/values/SystemVariant.h"
#include "runtime/values/Value.h"
#include "runtime/values/VarTypes.h"
#include "runtime/values/Variant.h"
#include "runtime/values/VariantArray.h"
#include "runtime/values/VariantConvert.h"
