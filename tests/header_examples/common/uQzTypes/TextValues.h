#pragma once

inline bool IsOpen;
