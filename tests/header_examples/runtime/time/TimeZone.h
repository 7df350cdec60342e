#pragma once

inline qz::TDateTime Entered;
