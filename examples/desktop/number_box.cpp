#include "desktop/number_box.h"

#include <commctrl.h>

#include "client/failure.h"

namespace {

HWND edit_box(HWND parent, int identifier, const RECT& place) {
  return CreateWindowExW(WS_EX_CLIENTEDGE, WC_EDITW, nullptr,
                         WS_CHILD | WS_VISIBLE | WS_TABSTOP | ES_AUTOHSCROLL, place.left, place.top,
                         place.right - place.left, place.bottom - place.top, parent,
                         reinterpret_cast<HMENU>(static_cast<INT_PTR>(identifier)),
                         GetModuleHandleW(nullptr), nullptr);
}

bool steps(WPARAM key) {
  return key == VK_PRIOR || key == VK_NEXT || key == VK_ADD || key == VK_SUBTRACT;
}

}  // namespace

NumberBox::NumberBox(HWND parent, int identifier, const RECT& place, NumberRules rules,
                     const Library& library)
    : rules_(rules),
      library_(library),
      window_(edit_box(parent, identifier, place)),
      object_(new TextBox(window_)) {
  SetWindowSubclass(window_, procedure, 0, reinterpret_cast<DWORD_PTR>(this));
}

LRESULT CALLBACK NumberBox::procedure(HWND window, UINT message, WPARAM first, LPARAM second,
                                      UINT_PTR, DWORD_PTR box) {
  auto* self = reinterpret_cast<NumberBox*>(box);
  if (message == WM_CHAR) {
    first = static_cast<WPARAM>(self->filtered(static_cast<short>(first)));
    if (first == 0) return 0;
  }
  if (message == WM_KEYDOWN && self->rules_.kind == NumberKind::whole && steps(first)) {
    self->step(static_cast<short>(first));
    return 0;
  }
  return DefSubclassProc(window, message, first, second);
}

short NumberBox::filtered(short character) {
  short positive = rules_.positive ? -1 : 0;
  Text text = text_of(window_);
  const Selection selection = selection_of(window_);
  auto selected = static_cast<short>(selection.end - selection.start);
  if (rules_.kind == NumberKind::whole)
    check(library_.entry->CheckInteger(&character, &positive, text.place(), &rules_.max_length,
                                       &selected));
  else
    check(library_.entry->CheckReal(&character, &positive, text.place(), &rules_.max_length,
                                    &selected));
  return character;
}

void NumberBox::step(short key) {
  IDispatch* box = object_.get();
  short shift = 0;
  check(library_.entry->IncreDecreInteger(&box, &key, &shift));
  // A number that is not negative has a blank in the place of its sign.
  const Text text = text_of(window_);
  if (*text.units() == L' ') SetWindowTextW(window_, text.units() + 1);
}

void NumberBox::tidy() {
  if (rules_.kind != NumberKind::real) return;
  const Text text = text_of(window_);
  Text tidied;
  check(library_.entry->CheckRealChange(text.get(), tidied.place()));
  if (tidied == text) return;
  SetWindowTextW(window_, tidied.units());
  const WPARAM end = SysStringLen(tidied.get());
  SendMessageW(window_, EM_SETSEL, end, static_cast<LPARAM>(end));
}

void NumberBox::select_all() {
  IDispatch* box = object_.get();
  check(library_.entry->FocusMe(&box));
}
