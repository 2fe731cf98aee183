#pragma once
// The attributes of references to a block from a template.

#include "platform/acad/db_block_reference.h"
#include "platform/acad/db_tables.h"
#include "platform/mfc/collections.h"

using CTextsByTag = CMap<CString, const CString&, CString, const CString&>;

/// Gives a reference, which is open for writing, an attribute for each definition of its block that is not
/// constant.
void AppendAttributes(const AcDbBlockTableRecord& definition, AcDbBlockReference& reference);

/// Fills an attribute, which is open for writing, with the text of its tag; a constant one, and one whose tag
/// has no text, stay. A centred one takes the text trimmed, and moves as the text's length differs from the
/// tag's.
void FillAttribute(AcDbAttribute& attribute, const CTextsByTag& texts);
