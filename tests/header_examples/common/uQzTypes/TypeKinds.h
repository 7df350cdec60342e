#pragma once

inline qz::TQzTypeKind Kind;
