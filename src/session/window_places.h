#pragma once

#include <string>

#include "app/module1.h"

class Settings;
class Window;

/// Reads the saved place of a window into PosFenetre; 1416, 2964 when there is none.
/// Raises 13 for a stored text that is not a number, 6 for one outside 16 bits.
void readPlace(Settings& settings, Module1& module, PlacedWindow window);

/// Saves where a window stands now, for the next run to read back: values are kept within the
/// 16 bits that reading allows.
void savePlace(Settings& settings, PlacedWindow form, const Window& window);

/// A place in twips, brought within 16 bits.
std::int16_t withinSixteenBits(int twips);
