#pragma once

#include "chart/chart_entity.h"
#include "commands/template_pass.h"
#include "ui/qy_property.h"

class CBRENDlg;

/// Lays the charts of one group of samples out on a row of sheets in model space, each in its frame and with
/// its texts.
class CSheetMaker {
public:
    /// The dialog outlives the maker.
    CSheetMaker(AcDbDatabase* pDatabase, const CBRENDlg& dialog, CString strGCBH);

    /// One sheet for each sample of the group, filled with as many charts as a sheet takes. 0, after a
    /// message, when the frame template cannot be used or a sample's data are faulty; what was placed before
    /// stays.
    int PlaceGroup(const CArray<QYPropty>& samples, const AcGePoint3d& ptPicked);

private:
    int PlaceSheet(const CArray<QYPropty>& samples, const AcGePoint3d& ptCorner, int nSheet);
    int PlaceChart(const QYPropty& sample, const AcGePoint3d& ptChart);
    void AddTexts(const AcGePoint3d& ptCorner) const;

    AcDbDatabase* m_pDatabase;
    const CBRENDlg& m_dialog;
    CString m_strGCBH;
    CTemplatePass m_template{m_pDatabase, m_dialog};
    CString m_strLabel, m_strMethod; ///< of the last chart of the sheet
    int m_nChartsPerRow = 1, m_nChartsPerSheet = 1;
    AcDbObjectId m_idTextStyle;
};
