#pragma once

inline qz::TDateTime When;
