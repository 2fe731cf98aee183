#pragma once

#include "platform/acad/db_database.h"

/// Holds the blocks of a drawing that was read to what can be drawn in reasonable time. Throws CDxfFailure,
/// which names the block: for one that holds itself, for blocks within blocks more than 100 deep, and where
/// such show more than 10 million entities.
void CheckDxfBlocks(const AcDbDatabase& database);
