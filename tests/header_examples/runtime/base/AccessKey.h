#pragma once

struct TItem;
