// What making a path absolute and making it relative have in common.
#pragma once

#include <string>
#include <string_view>

#include "files/guarded_steps.h"
#include "kwutils/variant.h"

namespace kw::files {

// Replaces `sought` by `by` until none is left, as one step.
void replace_step(GuardedSteps& steps, std::u16string& path, std::u16string_view sought,
                  std::u16string_view by);

// Takes every "\..\" out, as one step.
void resolve_step(GuardedSteps& steps, std::u16string& path);

// Takes "\\", "\.\" and "\..\" out, in three steps.
void normalise(GuardedSteps& steps, std::u16string& path);

// The folder that paths are taken from: the path of `indicator`, or the current directory when that
// is missing. "" after a failure that the user ignored.
std::u16string base_folder(GuardedSteps& steps, const Variant& indicator);

// The current directory; "" after a failure that the user ignored.
std::u16string current_directory(GuardedSteps& steps);

void change_drive(GuardedSteps& steps, char16_t letter);

// Tells the user that a ":" of `path` stands where none may stand.
void show_illegal_colon(GuardedSteps& steps, std::u16string_view path);

}  // namespace kw::files
