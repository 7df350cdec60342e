#include "tests/header_examples/Model.h"
