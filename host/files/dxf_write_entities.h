#pragma once

#include "host/files/dxf_explosions.h"
#include "host/files/dxf_output.h"

/// Writes the section of blocks with what they hold, but for model space and the sheet in front.
void WriteDxfBlocks(CDxfOutput& out, const CDxfExplosions& explosions);

/// Writes the section of entities: those of model space and of the sheet in front. A custom entity is written
/// as what it explodes into. What cannot be written is counted as lost: an entity that holds a number that is
/// not finite, and a custom entity that does not explode.
void WriteDxfEntities(CDxfOutput& out, const CDxfExplosions& explosions);
