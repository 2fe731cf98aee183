#pragma once

#include "platform/mfc/collections.h"

/// Values of the fields that share their queries, by placeholder, since FillSharedValues.
extern CMap<CString, const CString&, CString, const CString&> g_mapValues;

/// Fills g_mapValues anew: one query for each group of fields of g_arFields that read the same table. A group
/// is restricted as its first field is, whatever the others say; a query's first row alone counts.
void FillSharedValues(const CString& strGCSY, const CString& strZKBH);
