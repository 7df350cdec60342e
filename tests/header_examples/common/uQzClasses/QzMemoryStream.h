#pragma once

static char Buffer[16];
