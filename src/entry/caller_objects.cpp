#include "entry/caller_objects.h"

namespace kw::entry {

bool is_text_box(const Object& object) noexcept {
  const bool holds_text =
      object.answers(u"Text") && object.answers(u"SelStart") && object.answers(u"SelLength");
  // A combo box has all of these, too.
  return holds_text && !object.answers(u"List") && !object.answers(u"AddItem");
}

bool is_form(const Object& object) noexcept {
  return object.answers(u"WindowState") && object.answers(u"ScaleMode") && object.answers(u"line");
}

}  // namespace kw::entry
