#pragma once

inline qz::Variant Value;
