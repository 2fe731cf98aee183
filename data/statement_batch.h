#pragma once

#include "data/project_context.h"
#include "platform/mfc/collections.h"

/// Runs statements in turn, each once (equal without regard to case), their empty texts made NULL: in the
/// project's database for SuiteDb_Project, in the common one for any other. 1, also when the database has no
/// connection text and nothing runs. A statement that fails gives 0, and with *pFailure what is to be told of
/// the first one; those after it still run, but in the project's database.
int ExecuteBatch(CStringArray saStatements, SuiteDb db, CString* pFailure = nullptr);
