#pragma once
// Stored drawings opened from a command.

#include "platform/acad/error_status.h"
#include "platform/mfc/string.h"

/// Stands between paths, and between the titles of stored drawings.
inline constexpr char g_cPathSeparator = '|';

/// What the view shows of a drawing that was opened.
enum OpenZoom { OpenZoom_None = 0, OpenZoom_Extents = 1, OpenZoom_All = 2 };

/// Opens drawings; the paths stand with "|" between them. In single-document mode only the first is opened,
/// with a line when there are more, and the result says how that went. In multiple-document mode they open at
/// once in application context, and then bLock 1 locks the current document, which is the result; from a
/// command they open when it has ended.
Acad::ErrorStatus OpenChartDrawing(const CString& strPaths, OpenZoom zoom, int bLock);

/// The opening itself, in application context: strRequest is the zoom's number and the paths, with "|"
/// between them. Prints a line in a document's context; a drawing that cannot be opened is passed over.
void OpenDocumentsInApp(const CString& strRequest);
