#pragma once

#include "platform/mfc/string.h"

/// Whether the project of this index still stands in the register under exactly this number: 1. Else 0, after
/// a box that says why.
int CheckProjectNumber(int nGCSY, const CString& strGCBH);
