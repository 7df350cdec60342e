#pragma once

static void ShowProgress() {}
