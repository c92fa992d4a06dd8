// The unit in which forms tell their placement: 1440 twips are an inch of the screen.
#pragma once

#include <windows.h>

LONG twips_from_pixels(LONG pixels);
