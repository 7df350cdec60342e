#pragma once

inline qz::TDateTime Received;
