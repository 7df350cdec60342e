#pragma once

#include <qz/runtime/time/Time.h>
#include <qz/runtime/values/VariantConvert.h>

inline qz::Ref<qz::IInterface> Greeter;
