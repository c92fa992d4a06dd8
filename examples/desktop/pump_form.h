// The form: a pick list of pumps, the chosen one's values in boxes, and a button that stores them.
#pragma once

#include <memory>
#include <vector>

#include "desktop/canvas.h"
#include "desktop/form_object.h"
#include "desktop/number_box.h"
#include "desktop/option_group.h"
#include "desktop/pump_store.h"

class PumpForm {
 public:
  // Shows the window. The library and the store have to outlive it.
  PumpForm(const Library& library, PumpStore& store, const char* ini_file);
  PumpForm(const PumpForm&) = delete;
  PumpForm& operator=(const PumpForm&) = delete;

  HWND window() const noexcept { return window_; }

 private:
  static LRESULT CALLBACK procedure(HWND window, UINT message, WPARAM first, LPARAM second);
  LRESULT handle(UINT message, WPARAM first, LPARAM second);
  void command(int identifier, int notification);
  void make_controls();
  void fill_list();
  void show_chosen();
  void store_chosen();
  // Whether the power is at most what the INI file allows.
  bool is_power_allowed(const Text& power);
  void say(const Text& text);
  void paint_gradient();
  HBRUSH background_of(HDC drawing, HWND child);

  const Library& library_;
  PumpStore& store_;
  Text ini_file_;
  HWND window_;
  Reference<FormObject> object_;
  std::unique_ptr<Canvas> canvas_;
  HWND list_ = nullptr;
  HWND message_ = nullptr;
  std::unique_ptr<NumberBox> units_;
  std::unique_ptr<NumberBox> power_;
  std::unique_ptr<NumberBox> level_;
  std::vector<HWND> drives_;
  Reference<OptionGroup> drive_group_;
  std::vector<PumpEntry> pumps_;
};
