#pragma once

#include "platform/ado/rowset.h"
#include "platform/ado/value.h"

/// Puts a cell into a row buffer, with its status word where one is bound.
void FetchCell(const CDbCell& cell, const CColumnBinding& binding, unsigned char* pBuffer);

/// The value that a row buffer holds for a column; NULL when its status word says so.
CDbValue BoundValue(const CColumnBinding& binding, const unsigned char* pBuffer);

/// Whether two row buffers hold different values for a column.
bool BoundValueDiffers(const CColumnBinding& binding, const unsigned char* pBuffer,
                       const unsigned char* pOther);
