#pragma once
// What changes which drawings are open. Changes in a drawing that would be discarded are asked for first;
// these throw CCommandCancelled when the user gives it up, and CRunFailure.

#include "host/console/host.h"

/// Begins a new drawing; in single-document mode in place of the current one.
void NewDrawing(CHost& host);
/// Opens a drawing file (path in UTF-8), the same way; where it can't be read nothing is asked or changed.
Acad::ErrorStatus OpenDrawing(CHost& host, const std::string& strPath);
void CloseDrawing(CHost& host, AcApDocument& document);
void ActivateDrawing(CHost& host, AcApDocument& document);
/// Asks for every drawing that is changed.
void AskToSaveAll(CHost& host);
/// The end of the program: closes all drawings as they are. The modules are told.
void EndSession(CHost& host);
