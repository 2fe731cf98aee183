#pragma once

#include "platform/acad/display_list.h"

#include <numbers>
#include <optional>

/// The sweep of an arc that is a circle, radians.
constexpr double g_dFullTurn = 2.0 * std::numbers::pi;

/// The arc from the first point through the second one to the third; nothing for points in a line, and for
/// points so far off that there is no finite circle.
std::optional<CArcPrimitive> ArcThrough(const AcGePoint3d& first, const AcGePoint3d& second,
                                        const AcGePoint3d& third);
