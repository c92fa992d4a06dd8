// An edit box as the library sees it: its text and its selection.
#pragma once

#include "client/text.h"
#include "desktop/dispatch_object.h"

class TextBox : public DispatchObject {
 public:
  explicit TextBox(HWND box) noexcept;

 private:
  HRESULT get(DISPID member, VARIANT& value) override;
  HRESULT put(DISPID member, VARIANT& value) override;

  HWND box_;
};

struct Selection {
  DWORD start;
  DWORD end;
};

Selection selection_of(HWND box);
Text text_of(HWND window);
