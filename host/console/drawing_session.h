#pragma once
// What changes which drawings are open. Changes in a drawing that would be discarded are asked for first;
// these throw CCommandCancelled when the user gives it up, and CRunFailure.

#include "host/console/host.h"

/// Begins a new drawing; in single-document mode in place of the current one.
void NewDrawing(CHost& host);
/// Opens a drawing file (path in UTF-8), the same way; what the drawing does not hold of it is told. Throws
/// CDrawingFailure for one that can't be read; nothing is asked or changed then.
void OpenDrawing(CHost& host, const std::string& strPath);
/// The same in place of the current drawing, an empty one, in any mode.
void OpenFirstDrawing(CHost& host, const std::string& strPath);
void CloseDrawing(CHost& host, AcApDocument& document);
void ActivateDrawing(CHost& host, AcApDocument& document);
/// Asks for every drawing that is changed.
void AskToSaveAll(CHost& host);
/// The end of the program: closes all drawings as they are. The modules are told.
void EndSession(CHost& host);

/// The file that the user means by a path (UTF-8): sought in the host's order, else the path as given.
std::string FindDrawingFile(const std::string& strPath);
