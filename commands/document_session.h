#pragma once
// Whether the program holds one document or many, and what the module does with the documents there are.

#include "platform/acad/error_status.h"
#include "platform/mfc/string.h"

/// Several documents may be open: SDI is 0.
bool IsMultiDocument();

/// 0 for many documents, any other value for one at a time.
void SetSdi(short nSdi);
/// Sets SDI to what the user's settings say, 1 unless they say something.
void ApplyConfiguredSdi();

/// 1 when one document at most is open now, and single-document mode is set then. Else asks, under that
/// caption, whether the other ones are to be closed; 0 on no, and, after a line, when they are still open.
int EnsureSingleDocument(const CString& strCaption);

/// Closes the current document, in application context; with bUnlock 1 gives a lock of it back before.
Acad::ErrorStatus CloseDocumentAndEnd(int bUnlock);

/// Gives up what runs in the current document and types a command there.
void SendCommandToDocument(const CString& strCommand);
