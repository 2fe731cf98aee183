#pragma once

#include "chart/chart_entity.h"
#include "platform/acad/db_database.h"
#include "ui/qy_property.h"

/// Lays the charts of one group of samples out on a row of sheets in model space.
class CSheetMaker {
public:
    CSheetMaker(AcDbDatabase* pDatabase, Adesk::Int32 nGCSY, CString strGCBH, Adesk::Int32 nGCBZ);

    /// One sheet for each sample of the group, filled with as many charts as a sheet takes. 0 when a sample's
    /// data were faulty, after a message; what was placed before stays.
    int PlaceGroup(const CArray<QYPropty>& samples, const AcGePoint3d& ptPicked);

private:
    int PlaceSheet(const CArray<QYPropty>& samples, const AcGePoint3d& ptCorner, int nFirst);
    int PlaceChart(const QYPropty& sample, const AcGePoint3d& ptChart);

    AcDbDatabase* m_pDatabase;
    Adesk::Int32 m_nGCSY;
    CString m_strGCBH;
    Adesk::Int32 m_nGCBZ;
    int m_nChartsPerRow = 1, m_nChartsPerSheet = 1;
    AcDbObjectId m_idTextStyle;
};
