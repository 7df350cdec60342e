#pragma once

using namespace qz::detail;
