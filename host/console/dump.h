#pragma once

#include "platform/acad/db_database.h"

#include <string>

/// The drawing as JSON text (UTF-8, with a line end): variables, tables, blocks, entities, and what custom
/// entities explode into and draw. The drawing is afterwards as it was. strName (UTF-8) names it.
std::string DumpDrawing(AcDbDatabase& drawing, const std::string& strName);
