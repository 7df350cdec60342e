#pragma once

inline qz::Variant V;
