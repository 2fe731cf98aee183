#pragma once

#include "platform/mfc/string.h"
#include "platform/mfc/time.h"

/// A day as the suite's tables and sheets show it: year, month and day without leading zeros, "2024.3.7".
CString DateText(const CTime& day);
