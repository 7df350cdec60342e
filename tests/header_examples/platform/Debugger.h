#pragma once

static void ShowDetails() {}
