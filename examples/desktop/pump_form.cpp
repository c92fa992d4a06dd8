#include "desktop/pump_form.h"

#include <array>

#include "client/failure.h"
#include "desktop/controls.h"
#include "desktop/placement.h"

namespace {

enum : int { kList = 100, kUnits, kPower, kLevel, kFirstDrive, kLastDrive = kFirstDrive + 2 };

constexpr const WCHAR* kTitle = L"Pumps";
constexpr int kWidth = 460, kHeight = 330;

RECT area(LONG left, LONG top, LONG width, LONG height) {
  return {left, top, left + width, top + height};
}

HWND make_window(WNDPROC procedure, PumpForm* form) {
  WNDCLASSW kind{};
  kind.lpfnWndProc = procedure;
  kind.hInstance = GetModuleHandleW(nullptr);
  kind.hCursor = LoadCursorW(nullptr, IDC_ARROW);
  kind.hIcon = LoadIconW(nullptr, IDI_APPLICATION);
  kind.lpszClassName = L"PumpForm";
  RegisterClassW(&kind);
  return CreateWindowExW(WS_EX_CONTROLPARENT, kind.lpszClassName, kTitle,
                         WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN, CW_USEDEFAULT, CW_USEDEFAULT,
                         kWidth, kHeight, nullptr, nullptr, kind.hInstance, form);
}

}  // namespace

PumpForm::PumpForm(const Library& library, PumpStore& store, const char* ini_file)
    : library_(library),
      store_(store),
      ini_file_(ini_file),
      window_(make_window(procedure, this)),
      object_(new FormObject(window_)) {
  SetWindowLongPtrW(window_, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
  make_controls();
  set_fonts(window_);
  fill_list();
  restore_placement(window_, library_, ini_file_);
  paint_gradient();
  ShowWindow(window_, SW_SHOWNORMAL);
  SetFocus(list_);
}

LRESULT CALLBACK PumpForm::procedure(HWND window, UINT message, WPARAM first, LPARAM second) {
  auto* form = reinterpret_cast<PumpForm*>(GetWindowLongPtrW(window, GWLP_USERDATA));
  try {
    if (form != nullptr) return form->handle(message, first, second);
  } catch (const std::exception& error) {
    MessageBoxW(window, Text(error.what()).units(), kTitle, MB_OK);
    return 0;
  }
  return DefWindowProcW(window, message, first, second);
}

LRESULT PumpForm::handle(UINT message, WPARAM first, LPARAM second) {
  switch (message) {
    case WM_COMMAND:
      command(LOWORD(first), HIWORD(first));
      return 0;
    case WM_SIZE:
      paint_gradient();
      return 0;
    case WM_ERASEBKGND: {
      RECT inside{};
      GetClientRect(window_, &inside);
      canvas_->copy_to(reinterpret_cast<HDC>(first), inside);
      return 1;
    }
    case WM_CTLCOLORSTATIC:
      return reinterpret_cast<LRESULT>(
          background_of(reinterpret_cast<HDC>(first), reinterpret_cast<HWND>(second)));
    case WM_CLOSE:
      save_placement(*object_.get(), library_, ini_file_);
      DestroyWindow(window_);
      return 0;
    case WM_DESTROY:
      PostQuitMessage(0);
      return 0;
    default:
      return DefWindowProcW(window_, message, first, second);
  }
}

void PumpForm::command(int identifier, int notification) {
  if (identifier == IDOK) return store_chosen();
  if (identifier == kList && notification == LBN_SELCHANGE) return show_chosen();
  for (NumberBox* box : {units_.get(), power_.get(), level_.get()}) {
    if (box == nullptr || GetDlgCtrlID(box->window()) != identifier) continue;
    if (notification == EN_CHANGE) box->tidy();
    if (notification == EN_SETFOCUS) box->select_all();
  }
}

void PumpForm::make_controls() {
  make_label(window_, L"Pumps of the plant", area(16, 14, 160, 18));
  list_ = make_list(window_, kList, area(16, 36, 170, 214));
  make_label(window_, L"Units", area(208, 40, 90, 18));
  units_ = std::make_unique<NumberBox>(window_, kUnits, area(310, 37, 120, 21),
                                       NumberRules{NumberKind::whole, true, 4}, library_);
  make_label(window_, L"Power in kW", area(208, 74, 90, 18));
  power_ = std::make_unique<NumberBox>(window_, kPower, area(310, 71, 120, 21),
                                       NumberRules{NumberKind::real, true, 10}, library_);
  make_label(window_, L"Level in m", area(208, 108, 90, 18));
  level_ = std::make_unique<NumberBox>(window_, kLevel, area(310, 105, 120, 21),
                                       NumberRules{NumberKind::real, false, 10}, library_);
  make_label(window_, L"Drive", area(208, 142, 90, 18));
  const std::array<const WCHAR*, 3> names = {L"electric", L"diesel", L"turbine"};
  for (int i = 0; i < 3; ++i)
    drives_.push_back(make_option(window_, kFirstDrive + i, names[static_cast<std::size_t>(i)],
                                  area(310, 140 + 24 * i, 120, 20), i == 0));
  drive_group_ = Reference<OptionGroup>(new OptionGroup(drives_));
  make_button(window_, IDOK, L"Store", area(310, 222, 120, 28));
  message_ = make_label(window_, L"", area(16, 262, 420, 18));
}

void PumpForm::fill_list() {
  pumps_ = store_.list();
  for (const PumpEntry& pump : pumps_)
    SendMessageW(list_, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(pump.name.units()));
  SendMessageW(list_, LB_SETCURSEL, 0, 0);
  show_chosen();
}

void PumpForm::show_chosen() {
  const auto chosen = static_cast<std::size_t>(SendMessageW(list_, LB_GETCURSEL, 0, 0));
  if (chosen >= pumps_.size()) return;
  const Pump pump = store_.read(pumps_[chosen].id);
  SetWindowTextW(units_->window(), pump.units.units());
  SetWindowTextW(power_->window(), pump.power.units());
  SetWindowTextW(level_->window(), pump.level.units());
  CheckRadioButton(window_, kFirstDrive, kLastDrive, kFirstDrive + pump.drive);
}

void PumpForm::store_chosen() {
  const auto chosen = static_cast<std::size_t>(SendMessageW(list_, LB_GETCURSEL, 0, 0));
  if (chosen >= pumps_.size()) return;
  Pump pump;
  pump.units = text_of(units_->window());
  pump.power = text_of(power_->window());
  pump.level = text_of(level_->window());
  VARIANT group{};
  V_VT(&group) = VT_DISPATCH;
  V_DISPATCH(&group) = drive_group_.get();
  check(library_.entry->OptionTrueIs(&group, &pump.drive));
  if (!is_power_allowed(pump.power)) return say(Text("That is more power than is allowed"));
  store_.write(pumps_[chosen].id, pump);
  say(Text("Stored " + pumps_[chosen].name.bytes()));
}

bool PumpForm::is_power_allowed(const Text& power) {
  Text section("limits"), key("kw"), type("double");
  VARIANT no_limit{}, limit{};
  V_VT(&no_limit) = VT_R8;
  V_R8(&no_limit) = 1e9;
  // Where the file says something that is no number, the library tells the user.
  check(library_.ini->GetIniAndCheck(section.place(), key.place(), type.place(), ini_file_.place(),
                                     &no_limit, &limit));
  return V_VT(&limit) != VT_R8 || std::atof(power.bytes().c_str()) <= V_R8(&limit);
}

void PumpForm::say(const Text& text) { SetWindowTextW(message_, text.units()); }

void PumpForm::paint_gradient() {
  RECT inside{};
  GetClientRect(window_, &inside);
  canvas_ = std::make_unique<Canvas>(inside.right, inside.bottom);
  object_->draw_on(*canvas_);
  IDispatch* form = object_.get();
  check(library_.entry->Dither(&form));
  InvalidateRect(window_, nullptr, TRUE);
}

HBRUSH PumpForm::background_of(HDC drawing, HWND child) {
  POINT place{};
  MapWindowPoints(child, window_, &place, 1);
  SetTextColor(drawing, RGB(255, 255, 255));
  SetBkMode(drawing, TRANSPARENT);
  return canvas_->behind(drawing, place);
}
