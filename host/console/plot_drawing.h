#pragma once

#include "host/plot/plot.h"
#include "platform/acad/db_database.h"

#include <filesystem>
#include <string>

/// Plots what the entities of model space drew last, the drawing's extents on one sheet, at 1:1. False with
/// the reason (GBK).
bool PlotDrawing(AcDbDatabase& drawing, CFonts& fonts, const std::filesystem::path& path,
                 std::string* pReason);
