#pragma once

#include "platform/acad/db_database.h"

/// Adds one entity of each plain kind to model space, a block with its attribute definition and an insertion
/// of it with an attribute, a layer, a line type and a text style of their own, and extended data of every
/// kind of value.
void AddOneOfEachKind(AcDbDatabase& database);

/// Adds a sheet to model space: a chart of a test's readings and a frame, both filled. Their classes must be
/// registered, and the drawing be the one in force.
void AddSheet(AcDbDatabase& database);
