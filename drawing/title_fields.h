#pragma once
// What is written into a title block: placeholders and their values, at the same place of two lists. Nothing
// is told to the user; what cannot be found is an empty text.

#include "platform/mfc/collections.h"

/// The fields of g_arFields, which take their values, in their order. The borehole's marks "*" do not count.
/// Gives 1.
int FillFieldValues(const CString& strGCSY, CString strZKBH, CStringArray& saKeys, CStringArray& saValues);

/// The fields as they are configured now, then page number, page count and today's date. The borehole's own
/// field shows it as given. Gives 1.
int BuildSheetFields(const CString& strGCSY, const CString& strZKBH, CStringArray& saKeys,
                     CStringArray& saValues, int nPage, int nPages);
