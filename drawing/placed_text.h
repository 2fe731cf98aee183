#pragma once

#include "platform/acad/db_text.h"
#include "platform/mfc/string.h"

/// Gives a text, which is open for writing, another content. One that is placed by its alignment point stays
/// there, which moves its left end.
void SetPlacedText(AcDbText& text, const CString& strText);
