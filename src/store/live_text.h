// Variables of the caller that are looked at again and again while the host may change them.
#pragma once

#include <string>
#include <string_view>

#include "kwutils/string.h"
#include "kwutils/variant.h"
#include "store/item_search.h"

namespace kw::store {

// The text of a variable. It is read again when the variable holds another text, which a glance at
// its address tells; so a variable whose text is gone is never read.
class LiveText {
 public:
  // Whether the variable's text may have changed since the last call; text() is then the new one.
  bool follow(const String& variable) {
    if (follows(variable)) return false;
    seen_ = true;
    address_ = variable.get();
    text_ = variable.view();
    return true;
  }
  bool follows(const String& variable) const noexcept {
    return seen_ && variable.get() == address_;
  }
  const std::u16string& text() const noexcept { return text_; }

 private:
  bool seen_ = false;
  BSTR address_ = nullptr;
  std::u16string text_;
};

// The keyword in a variable. An apostrophe at its end is taken off, also in the variable.
class LiveKeyword {
 public:
  const Keyword& of(String& variable);
  // Whether of() would find nothing new.
  bool settled(const String& variable) const noexcept { return text_.follows(variable); }

 private:
  LiveText text_;
  Keyword keyword_{u""};
};

// The keyword in a variant. Its tabs become blanks, also in the variable; an apostrophe at its end
// does not count.
class LiveVariantKeyword {
 public:
  const Keyword& of(Variant& variable);

 private:
  std::u16string text_;
  Keyword keyword_{u""};
};

// An item and its value as they stand in a file, nm 'Outlet', that entities are to hold. An empty
// text asks for nothing.
class LiveFilter {
 public:
  // Whether the line holds what the variable asks for.
  bool passes(std::string_view line, const String& variable);

 private:
  void follow(std::u16string_view text);

  LiveText text_;
  Keyword keyword_{u""};
  std::string wanted_;
  bool in_page_ = true;  // a value that the code page lacks is nowhere
};

}  // namespace kw::store
