#pragma once

static void TakeLocks() {}
static void ReleaseLocks() {}
