// The layouts and appenders of this library. Internal.
#pragma once

namespace qz {

class TQzLogBaseClassList;

namespace detail {

void AddLayouts(TQzLogBaseClassList& AList);
void AddAppenders(TQzLogBaseClassList& AList);

} // namespace detail

} // namespace qz
