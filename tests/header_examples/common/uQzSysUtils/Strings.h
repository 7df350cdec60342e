#pragma once

inline qz::UnicodeString Extension;
