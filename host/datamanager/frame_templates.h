#pragma once

#include <string>

// The drawings that an installation begins with, as DWG files; see docs/frames.md. They leave the places of
// charts and of the texts beside them free.

/// An upright A4 sheet for one chart.
std::string PortraitFrame();
/// A lying A3 sheet for two charts, whose names stand in the title strip.
std::string LandscapeFrame();
/// The title strip at the foot of the A3 sheet, in metres. It is put 24 mm to the left of the sheet and 5 mm
/// above its lower edge.
std::string TitleStrip();
