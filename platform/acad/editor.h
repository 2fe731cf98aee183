#pragma once
// Functions of the editor that commands call.

#include "platform/acad/result_buffer.h"

/// Prints to the text window. Returns RTNORM.
int acutPrintf(const ACHAR* format, ...);

/// Asks for a point; pBase is the point a rubber band starts from, null for none. RTNORM with the point,
/// RTNONE for an empty answer, RTCAN when the user cancelled.
int acedGetPoint(const ads_point pBase, const ACHAR* prompt, ads_point result);

/// System variables: those of the working drawing, and those of the program (SDI, PLOTDPI). RTERROR for an
/// unknown name or a value of the wrong kind.
int acedGetVar(const ACHAR* name, resbuf* pResult);
int acedSetVar(const ACHAR* name, const resbuf* pValue);

/// Finds a file by the host's search order: as given, beside the drawing, in the installation's Support
/// folder, then below its root. result holds up to 1024 characters. RTERROR when there is none.
int acedFindFile(const ACHAR* name, ACHAR* result);

/// The main window, as an owner for message boxes.
void* adsw_acadMainWnd();
