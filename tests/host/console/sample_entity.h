#pragma once
// A custom entity of the sample module: it tells its fields, and looking at it changes variables and tables.

#include "platform/acad/db_entity.h"
#include "platform/acad/field_table.h"

#include <limits>

class CSampleSheet : public AcDbEntity {
public:
    static AcRxClass* desc();
    AcRxClass* isA() const override { return CSampleSheet::desc(); }

    std::string m_strName = "试样\"1\"";
    AcGePoint3d m_ptOrigin;
    Adesk::Int32 m_nCount = -7;
    CFlag m_flag{1};
    double m_dValue = 0.1, m_dNone = std::numeric_limits<double>::quiet_NaN();
    AcDbObjectId m_idStyle;
    std::vector<double> m_arNumbers = {1.0, -std::numeric_limits<double>::infinity()};
    std::vector<std::string> m_arTexts = {"甲", ""};
    std::vector<std::vector<double>> m_arLists = {{1.5}, {}};

    void modified(const AcDbObject* pObject) override;                   ///< told while g_bTellDraws is set
    Acad::ErrorStatus dwgOutFields(AcDbDwgFiler* pFiler) const override; ///< origin and count
    Acad::ErrorStatus dwgInFields(AcDbDwgFiler* pFiler) override;

protected:
    Adesk::Boolean subWorldDraw(AcGiWorldDraw* pMode) override;
    Acad::ErrorStatus subExplode(AcDbVoidPtrArray& entitySet) const override;
    Acad::ErrorStatus subGetGripPoints(AcGePoint3dArray& gripPoints, AcDbIntArray& osnapModes,
                                       AcDbIntArray& geomIds) const override;
};

/// Makes the class known, with its field table; and takes both away.
void RegisterSampleSheet();
void UnregisterSampleSheet();

/// Each drawing of a sheet, and what it hears as a reactor, is told by acutPrintf while this is set.
extern bool g_bTellDraws;
