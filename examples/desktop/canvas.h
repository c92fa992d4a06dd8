// A picture in memory, from which a window is painted.
#pragma once

#include <windows.h>

class Canvas {
 public:
  Canvas(int width, int height);
  Canvas(const Canvas&) = delete;
  Canvas& operator=(const Canvas&) = delete;
  ~Canvas();

  int height() const noexcept { return height_; }
  void fill(const RECT& area, COLORREF colour);
  void copy_to(HDC target, const RECT& area) const;
  // A brush that paints a child window at `place` with what the finished picture shows there. The
  // canvas owns it.
  HBRUSH behind(HDC child, POINT place);

 private:
  HDC memory_;
  HBITMAP picture_;
  HGDIOBJ former_;
  HBRUSH brush_ = nullptr;
  int height_;
};
