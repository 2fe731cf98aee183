#pragma once

#include "host/console/host.h"

/// Makes a free entity part of the current drawing's model space and closes it.
AcDbObjectId AppendToModelSpace(const CHost& host, std::unique_ptr<AcDbEntity> pEntity);
