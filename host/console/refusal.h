#pragma once

#include "host/console/host.h"

/// Tells the user that the entity would not have it, which stays as it was; no failure of the run.
void TellRefusal(const CHost& host, const std::string& strWhat, AcDbObjectId id, Acad::ErrorStatus status);
