#pragma once

#include "host/files/dxf_output.h"

/// Whether an entity that is no ordinary one can be written as a proxy: not one of a type of drawing files
/// that drawings here hold none of.
bool IsDxfProxy(const AcDbEntity& entity);

/// Writes the groups of a proxy for a custom entity behind those that all entities have: its class, its
/// picture (null for none), and what its class has written. What is missing of these is counted as lost.
void WriteDxfProxy(CDxfOutput& out, const AcDbEntity& entity, const CBytes* pPicture);
