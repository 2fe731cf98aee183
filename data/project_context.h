#pragma once

#include "platform/mfc/string.h"

/// The suite's ini files, learnt once when the module is loaded: the state of the running project (read
/// only), the user's settings, the marks of charts that exist already.
extern CString g_strProjectIni;
extern CString g_strSettingsIni;
extern CString g_strMarksIni;

/// The suite's databases.
enum SuiteDb {
    SuiteDb_Project = 0, ///< the running project's test tables
    SuiteDb_Common = 1,  ///< people
    SuiteDb_Config = 2,  ///< templates and fields of title blocks
};

/// The index (GCSY) of the running project; 0 is one. Without a project (negative) shows a box and gives -1.
int GetProjectIndex();

/// A text of the running project (section Project of its ini file), up to 1023 bytes; empty when there is
/// none.
CString ReadProjectText(const char* pszKey);

/// A number of the running project; -1 when there is none.
int ReadProjectNumber(const char* pszKey);

/// The window class of the data manager by the installed edition (LOCALVER 0 to 4); empty for any other
/// value.
CString GetDataManagerClass();

/// Finds the data manager and tells it that its project is going to be used: 1; shows a box when it is not
/// running: 0.
int CheckDataManager();

/// The install root of the suite: 1, or 0 with the text as it was.
int GetRootPath(CString* pRoot);

/// The connection text of a suite database: 1, or 0 when there is none, as for SuiteDb_Project without a
/// project.
int GetConnectionText(SuiteDb db, CString* pConnection);

/// Whether the project's connection text, asked anew, differs from the one a caller remembers. Without a
/// project it is empty.
int ConnectionChanged(const CString& strRemembered);
