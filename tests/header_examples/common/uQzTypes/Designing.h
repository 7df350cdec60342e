#pragma once

static void Connect() {}
