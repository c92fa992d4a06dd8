#include "desktop/controls.h"

#include <commctrl.h>

namespace {

HWND make(HWND parent, int identifier, const WCHAR* kind, const WCHAR* text, const RECT& place,
          DWORD style, DWORD extended_style = 0) {
  return CreateWindowExW(extended_style, kind, text, WS_CHILD | WS_VISIBLE | style, place.left,
                         place.top, place.right - place.left, place.bottom - place.top, parent,
                         reinterpret_cast<HMENU>(static_cast<INT_PTR>(identifier)),
                         GetModuleHandleW(nullptr), nullptr);
}

BOOL CALLBACK set_font(HWND child, LPARAM font) {
  SendMessageW(child, WM_SETFONT, static_cast<WPARAM>(font), FALSE);
  return TRUE;
}

}  // namespace

HWND make_label(HWND parent, const WCHAR* text, const RECT& place) {
  return make(parent, -1, WC_STATICW, text, place, SS_LEFT | SS_NOPREFIX);
}

HWND make_list(HWND parent, int identifier, const RECT& place) {
  return make(parent, identifier, WC_LISTBOXW, nullptr, place,
              WS_TABSTOP | WS_VSCROLL | LBS_NOTIFY | LBS_NOINTEGRALHEIGHT, WS_EX_CLIENTEDGE);
}

HWND make_option(HWND parent, int identifier, const WCHAR* text, const RECT& place, bool first) {
  return make(parent, identifier, WC_BUTTONW, text, place,
              BS_AUTORADIOBUTTON | (first ? WS_GROUP | WS_TABSTOP : 0));
}

HWND make_button(HWND parent, int identifier, const WCHAR* text, const RECT& place) {
  return make(parent, identifier, WC_BUTTONW, text, place,
              BS_DEFPUSHBUTTON | WS_GROUP | WS_TABSTOP);
}

void set_fonts(HWND form) {
  NONCLIENTMETRICSW metrics{};
  metrics.cbSize = sizeof metrics;
  SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0);
  // Lives as long as the program.
  static const HFONT font = CreateFontIndirectW(&metrics.lfMessageFont);
  EnumChildWindows(form, set_font, reinterpret_cast<LPARAM>(font));
}
