#pragma once

#include "host/console/json_values.h"
#include "platform/acad/db_database.h"

/// Reads a field's value as a dump shows it, of the kind of former, which the field has now: a text style by
/// its name in the drawing, a number that is none by its text. Throws CRunFailure that says what is wrong.
CFieldValue FieldFromJson(const CJson& json, const CFieldValue& former, AcDbDatabase& drawing);
