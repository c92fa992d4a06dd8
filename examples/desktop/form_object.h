// The program's form as the library sees it: its placement in twips (1440 an inch), how it draws,
// and a method that draws.
#pragma once

#include "desktop/canvas.h"
#include "desktop/dispatch_object.h"

class FormObject : public DispatchObject {
 public:
  explicit FormObject(HWND window) noexcept;

  // What is drawn goes there; the canvas has to outlive the drawing.
  void draw_on(Canvas& canvas) noexcept { canvas_ = &canvas; }

 private:
  HRESULT get(DISPID member, VARIANT& value) override;
  HRESULT put(DISPID member, VARIANT& value) override;
  HRESULT call(DISPID member, std::span<VARIANT> arguments) override;
  HRESULT draw_box(std::span<VARIANT> arguments);

  HWND window_;
  Canvas* canvas_ = nullptr;
  LONG draw_style_ = 0;
  LONG draw_mode_ = 13;
  LONG scale_mode_ = 3;
  LONG draw_width_ = 1;
  double scale_height_ = 0;  // so many units from the top to the bottom; 0 for pixels
};
