#pragma once

#include "platform/acad/db_filer.h"

#include <string>

/// Reads a text of a record.
Acad::ErrorStatus ReadText(AcDbDwgFiler* pFiler, std::wstring& strText);
