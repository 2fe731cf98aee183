#pragma once

#include "platform/acad/db_database.h"

/// Draws what was appended or changed since the last call, each entity once, in database order.
void DrawChanged(AcDbDatabase& drawing);

/// Draws every entity once, in database order.
void DrawAll(AcDbDatabase& drawing);
