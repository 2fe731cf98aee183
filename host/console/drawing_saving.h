#pragma once
// Drawings to their files. What cannot be saved stays open and changed: CRunFailure, which names file and
// reason. What the file loses by it is told.

#include "host/console/host.h"

/// The endings of drawing files.
inline constexpr const char* g_szDrawingEndings = ".dwg .dxf";

/// Saves a drawing to its file, as it was saved there last. One without a file is asked for its path, on a
/// line of its own.
void SaveDrawing(CHost& host, AcApDocument& document);

/// Saves a drawing under a path (UTF-8), which becomes its own. bExploded, for a DXF file only: custom
/// entities are written as their parts.
void SaveDrawingAs(CHost& host, AcApDocument& document, const std::string& strPath, bool bExploded);
