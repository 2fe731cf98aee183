#pragma once

#include "host/plot/plot.h"
#include "platform/acad/db_database.h"

#include <filesystem>
#include <string>

/// Plots what the entities of model space drew last, at 1:1: a page for each reference to block "BRMB" that
/// shows something of the block, with all that lies on it; where there is none the drawing's extents on one
/// sheet. False with the reason (GBK).
bool PlotDrawing(AcDbDatabase& drawing, CFonts& fonts, const std::filesystem::path& path,
                 std::string* pReason);
