#pragma once

static void ShowResult() {}
