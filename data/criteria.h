#pragma once

#include "platform/mfc/string.h"

// The conditions that the module puts into the record classes' queries. Numbers given as texts are quoted
// here.

/// Rows of a project.
CString ProjectCriterion(int nGCSY);
/// Readings of a project, in the natural order of boreholes and samples.
CString ProjectListCriterion(int nGCSY);
/// The same, in the spelling of the open dialog.
CString OpenDialogListCriterion(int nGCSY);
/// Readings of a borehole, in the natural order of its samples.
CString BoreholeListCriterion(int nGCSY, const CString& strZKBH);
/// The row, or the rows, of a sample.
CString SampleCriterion(int nGCSY, const CString& strZKBH, const CString& strQYBH);
/// Readings of a sample, specimen by specimen, in the order they were taken.
CString ReadingsCriterion(int nGCSY, const CString& strZKBH, const CString& strQYBH);
/// The soil layer of a borehole that holds the whole of a sample; depth of its top and its thickness in
/// metres.
CString LayerCriterion(int nGCSY, const CString& strZKBH, double dDepth, double dThickness);
