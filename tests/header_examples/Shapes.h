#pragma once

#include <qz/runtime/objects/Objects.h>

namespace qz {

enum class TColor : std::uint8_t { clRed, clGreen };
struct TPoint {
    int X, Y;
};
class IShape : public IInterface {
public:
    static constexpr TGUID IID = Guid("{5A0D0F5B-6B37-4B62-8C0B-2E6B0A0B9C11}");
};
class TShape : public TObject {
    QZ_CLASS(TShape, TObject)
public:
    int GetWidth() const;
    void SetWidth(int AValue);
    int GetArea() const;
};

} // namespace qz

QZ_TYPE_INFO(qz::TColor);
QZ_TYPE_INFO(qz::TPoint);
QZ_TYPE_INFO(qz::IShape);
