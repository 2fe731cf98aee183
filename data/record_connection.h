#pragma once

#include "data/project_context.h"

class CDbSession;

/// The session through which the record classes reach SuiteDb_Project or SuiteDb_Common, connected when there
/// is none. That of the project is connected anew on every call while a project is open, so records always
/// belong to the running project. Null when the database cannot be had.
const CDbSession* RecordSession(SuiteDb db);

/// 1 when the provider of the project's database is "Microsoft.Jet.OLEDB.4.0", as found at the last
/// connection; for whoever needs to know the SQL dialect.
int IsJetDatabase();
