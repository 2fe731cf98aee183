#pragma once

#include "host/plot/plot.h"
#include "platform/acad/db_database.h"

#include <filesystem>
#include <functional>
#include <string>

/// Whether a plot goes on, with so many pages done of all. May be empty.
using CPlotGoesOn = std::function<bool(std::size_t nDone, std::size_t nPages)>;

/// How this drawing is plotted: its line types and their scale, the program's resolution of pictures.
CPlotOptions PlotOptionsOf(AcDbDatabase& drawing);

/// Plots what the entities of model space drew last, at 1:1: a page for each reference to block "BRMB" that
/// shows something of the block, with all that lies on it; where there is none the drawing's extents on one
/// sheet. False with the reason (GBK), also when fnGoesOn, asked before each page, gives it up.
bool PlotDrawing(AcDbDatabase& drawing, CFonts& fonts, const std::filesystem::path& path,
                 const CPlotGoesOn& fnGoesOn, std::string* pReason);
