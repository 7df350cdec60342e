#pragma once

inline qz::TQzKeyDescStringList* List;
