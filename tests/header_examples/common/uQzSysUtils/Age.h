#pragma once

inline qz::TDateTime Born;
