#pragma once
// The titles of stored chart drawings, which are their file names without folder and ending: "BR", the
// borehole, "-", and the sample numbers with "~" between them.

#include "platform/mfc/string.h"

/// The title of a drawing that holds the charts of the whole project; it is the borehole's "全部".
inline constexpr const char* g_pAllSamplesTitle = "BR全部-全部试样";

/// 1 when the title is one of the borehole. A borehole whose number goes on with "-" is one of the shorter
/// number, too.
int MatchBorehole(const CString& strZKBH, const CString& strTitle);

/// How the title is shown: "试样ZK1-3和4" for "BRZK1-3~4".
CString DisplayName(const CString& strTitle);
