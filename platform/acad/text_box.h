#pragma once
// The rectangle that a line of text fills: advance width by height of the capitals, from its base point.

#include "platform/acad/display_list.h"

#include <array>
#include <optional>

/// The corners (bottom left, bottom right, top right, top left as the text reads). Slant and tracking don't
/// count. Nothing without text metrics, for an empty text, and when a number is not finite or the height is
/// 0.
std::optional<std::array<AcGePoint3d, 4>> TextBox(const CTextPrimitive& text);
