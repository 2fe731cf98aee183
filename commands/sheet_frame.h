#pragma once

#include "frame/frame_entity.h"
#include "ui/qy_property.h"

#include <memory>

class CBRENDlg;

/// The frame that belongs to a chart, filled from the sample and what the dialog says, with the chart as its
/// watcher. It is in no drawing: the sheet's frame comes from the template.
std::unique_ptr<CBRENFrame> MakeSheetFrame(const CBRENDlg& dialog, const QYPropty& sample,
                                           const AcGePoint3d& ptBase, AcDbObjectId idTextStyle,
                                           AcDbObjectId idChart);
