// Where the form stood last time: kept in an INI file, in per cent of the screen.
#pragma once

#include "client/text.h"
#include "desktop/form_object.h"
#include "desktop/library.h"

// Leaves the window where it is when the file does not say.
void restore_placement(HWND window, const Library& library, const Text& ini_file);
void save_placement(FormObject& form, const Library& library, Text& ini_file);
