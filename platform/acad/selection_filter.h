#pragma once
// What a selection takes of the entities it comes upon.

#include "platform/acad/db_entity.h"

struct resbuf;

/// Whether a chain is a filter: each of its items is a group 0 (DXF name), 6 (line type), 8 (layer), 62
/// (colour index) or 1001 (application with extended data on the entity). Null is the filter that takes all.
bool IsSelectionFilter(const resbuf* pFilter);

/// Whether all items of a filter hold for the entity. Names compare without case; in a filter's name '*'
/// stands for any text, '?' for one character, and commas part alternatives.
bool PassesFilter(const AcDbEntity& entity, const resbuf* pFilter);
