#pragma once
// Where a project's chart drawings are stored. They are made outside of this module.

#include "platform/mfc/string.h"

/// The folder, below the install root of the suite.
CString ChartFolder(const CString& strGCBH);
/// 1 when it is there.
int HasChartFolder(const CString& strGCBH);
/// The file of a title.
CString ChartFile(const CString& strGCBH, const CString& strTitle);
