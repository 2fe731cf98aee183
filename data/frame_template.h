#pragma once

#include "platform/mfc/string.h"

// The drawing templates of frames, as the suite's configuration has them. Like every free query these close
// all connections of free queries at their end.

/// The file name of a function's template, and its folder: the install root, the path kept (which begins with
/// a slash) and a slash. 1, or 0 with both texts as they were when the function has none.
int GetFrameTemplate(const CString& strFunction, CString* pFile, CString* pFolder);

/// Makes a file the template of a function, by a batch for SuiteDb_Config, which runs on the common
/// database's connection. 0 when the statement fails there.
int SetFrameTemplate(const CString& strFunction, const CString& strFile);
