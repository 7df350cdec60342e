#include "tests/header_examples/Model.h"

extern qz::TObject& Object;
inline qz::TModel* Server;
