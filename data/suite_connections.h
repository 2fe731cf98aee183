#pragma once

#include "data/ado_database.h"
#include "data/project_context.h"

// The connections of free queries, one to each suite database, kept for the life of the module.

/// Connects a suite database unless it is connected already; SuiteDb_Project anew once another project runs.
/// 0 only when there is no connection text. Whether opening went well shows when a statement is run.
int EnsureConnection(SuiteDb db);

/// The database object of a suite database, connected or not.
CADODatabase& SuiteConnection(SuiteDb db);

/// Closes all of them; EnsureConnection opens them again.
void CloseSuiteConnections();
