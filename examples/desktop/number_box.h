// An edit box for a number. Every key that is pressed in it goes through the library, which rejects
// what is no part of a number, and so does every change of its text.
#pragma once

#include "client/reference.h"
#include "desktop/library.h"
#include "desktop/text_box.h"

enum class NumberKind { whole, real };

struct NumberRules {
  NumberKind kind;
  bool positive;  // takes no minus
  short max_length;
};

class NumberBox {
 public:
  // Makes the child window. The library has to outlive the box.
  NumberBox(HWND parent, int identifier, const RECT& place, NumberRules rules,
            const Library& library);

  HWND window() const noexcept { return window_; }
  // For the notifications that the parent gets: the text was changed; the box got the focus.
  void tidy();
  void select_all();

 private:
  static LRESULT CALLBACK procedure(HWND window, UINT message, WPARAM first, LPARAM second,
                                    UINT_PTR, DWORD_PTR box);
  // 0 for a character that the box does not take.
  short filtered(short character);
  void step(short key);

  NumberRules rules_;
  const Library& library_;
  HWND window_;
  Reference<TextBox> object_;
};
