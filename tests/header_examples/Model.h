#pragma once

#include <qz/runtime/components/Components.h>

namespace qz {

class TModel : public TComponent {
    QZ_CLASS(TModel, TComponent)
public:
    void SetName(const UnicodeString& AName);
};
inline TModel* Model;
inline TModel* Edit;
inline TModel* Application;

} // namespace qz
