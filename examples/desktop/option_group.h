// A group of option buttons as the library sees it: something to walk through, whose members tell
// whether they are chosen and what number they have.
#pragma once

#include <vector>

#include "client/reference.h"
#include "desktop/dispatch_object.h"

class OptionButton : public DispatchObject {
 public:
  OptionButton(HWND button, LONG index) noexcept;

 private:
  HRESULT get(DISPID member, VARIANT& value) override;

  HWND button_;
  LONG index_;
};

class OptionGroup : public DispatchObject {
 public:
  // The first button has the index 0.
  explicit OptionGroup(const std::vector<HWND>& buttons);

 private:
  HRESULT get(DISPID member, VARIANT& value) override;

  std::vector<Reference<OptionButton>> buttons_;
};
