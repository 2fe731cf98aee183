#pragma once

#include "platform/ado/provider.h"

// What the suite's own databases hold in a new installation. Both throw CDbError.

/// The people of the chart's title block, whose names are still to be filled in.
void FillCommonDatabase(CDbConnection& database);
/// The frame template of the chart, and the fields of its title block.
void FillConfigDatabase(CDbConnection& database);
