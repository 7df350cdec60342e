#include <qz/runtime/lists/StringList.h>

inline qz::TQzMemoList* List;
inline qz::TStringList Lines;
