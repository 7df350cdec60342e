#pragma once

inline qz::TDateTime Invoice;
