// The plain child windows of a form.
#pragma once

#include <windows.h>

HWND make_label(HWND parent, const WCHAR* text, const RECT& place);
HWND make_list(HWND parent, int identifier, const RECT& place);
// The first one of a group says so.
HWND make_option(HWND parent, int identifier, const WCHAR* text, const RECT& place, bool first);
HWND make_button(HWND parent, int identifier, const WCHAR* text, const RECT& place);
// Gives every child window of the form its font.
void set_fonts(HWND form);
