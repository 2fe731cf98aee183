#pragma once
// The groups of texts behind those that all entities have.

#include "host/files/dxf_output.h"

bool WriteDxfText(CDxfOutput& out, const AcDbEntity& entity);
bool WriteDxfAttributeDefinition(CDxfOutput& out, const AcDbEntity& entity);
bool WriteDxfAttribute(CDxfOutput& out, const AcDbEntity& entity);
