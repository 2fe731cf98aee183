#pragma once

#include "host/files/custom_pictures.h"
#include "host/files/dxf_explosions.h"
#include "host/files/dxf_output.h"

#include <variant>

/// What custom entities are written with: their parts, or their pictures where they are written as proxies.
using CDxfCustomEntities = std::variant<CDxfExplosions, CCustomPictures>;

/// Writes the section of blocks with what they hold, but for model space and the sheet in front.
void WriteDxfBlocks(CDxfOutput& out, const CDxfCustomEntities& customs);

/// Writes the section of entities: those of model space and of the sheet in front. What
/// cannot be written is counted as lost: an entity that holds a number that is not finite, and a custom
/// entity that does not explode where this is asked for.
void WriteDxfEntities(CDxfOutput& out, const CDxfCustomEntities& customs);
