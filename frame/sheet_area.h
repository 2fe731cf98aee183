#pragma once

// The part of a sheet that the frame surrounds and the chart's panels fill, below and right of the base point
// of both; drawing units.
inline constexpr double g_dAreaWidth = 176.0;
inline constexpr double g_dAreaHeight = 257.0;
