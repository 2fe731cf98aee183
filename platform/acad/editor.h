#pragma once
// Functions of the editor that commands call.

#include "platform/acad/result_buffer.h"

/// Prints to the text window. Returns RTNORM.
int acutPrintf(const ACHAR* format, ...);

/// Asks for a point; pBase is the point a rubber band starts from, null for none. RTNORM with the point,
/// RTNONE for an empty answer, RTCAN when the user cancelled.
int acedGetPoint(const ads_point pBase, const ACHAR* prompt, ads_point result);

/// Runs a command from within another, in document context only. The chain, or what stands behind type as
/// acutBuildList takes it, is the command's name and its first answers: texts, numbers, points; the user
/// gives what it still needs. RTERROR when there is no such command or it failed, RTCAN when it was
/// cancelled.
int acedCmd(const resbuf* pChain);
int acedCommand(int type, ...);

/// The box of a text given by its groups 1 (the text), 40 (height), 41 (width factor, 1 unless given) and 7
/// (style, "Standard" unless given), as it lies unturned at the origin. RTERROR without text or height, for a
/// style that the working drawing lacks, and for a text that shows nothing.
int acedTextBox(const resbuf* pText, ads_point low, ads_point high);

/// System variables: those of the working drawing (VIEWCTR and VIEWSIZE, what its view shows, only to be
/// read), and those of the program (SDI, PLOTDPI). RTERROR for an unknown name or a value of the wrong kind.
int acedGetVar(const ACHAR* name, resbuf* pResult);
int acedSetVar(const ACHAR* name, const resbuf* pValue);

/// Single-document mode: SDI is not 0.
bool IsSingleDocument();

/// Finds a file by the host's search order: as given, beside the drawing, in the installation's Support
/// folder, then below its root. result holds up to 1024 characters. RTERROR when there is none.
int acedFindFile(const ACHAR* name, ACHAR* result);

/// The main window, as an owner for message boxes.
void* adsw_acadMainWnd();
/// The program's frame around the documents; it is the main window.
void* acedGetAcadFrame();
