#pragma once

inline qz::TObject* Settings;
