#include "desktop/canvas.h"

Canvas::Canvas(int width, int height) : height_(height) {
  const HDC screen = GetDC(nullptr);
  memory_ = CreateCompatibleDC(screen);
  picture_ = CreateCompatibleBitmap(screen, width > 0 ? width : 1, height > 0 ? height : 1);
  ReleaseDC(nullptr, screen);
  former_ = SelectObject(memory_, picture_);
}

Canvas::~Canvas() {
  if (brush_ != nullptr) DeleteObject(brush_);
  SelectObject(memory_, former_);
  DeleteObject(picture_);
  DeleteDC(memory_);
}

void Canvas::fill(const RECT& area, COLORREF colour) {
  const HBRUSH brush = CreateSolidBrush(colour);
  FillRect(memory_, &area, brush);
  DeleteObject(brush);
}

void Canvas::copy_to(HDC target, const RECT& area) const {
  BitBlt(target, area.left, area.top, area.right - area.left, area.bottom - area.top, memory_,
         area.left, area.top, SRCCOPY);
}

HBRUSH Canvas::behind(HDC child, POINT place) {
  if (brush_ == nullptr) {
    // A bitmap becomes a brush while it is selected nowhere.
    SelectObject(memory_, former_);
    brush_ = CreatePatternBrush(picture_);
    SelectObject(memory_, picture_);
  }
  SetBrushOrgEx(child, -place.x, -place.y, nullptr);
  return brush_;
}
