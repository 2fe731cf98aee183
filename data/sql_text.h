#pragma once

#include "platform/mfc/string.h"

/// A value made fit to stand between single quotes in a statement: each quote inside it is doubled.
CString SqlText(const CString& strValue);
