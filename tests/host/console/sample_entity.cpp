#include "tests/host/console/sample_entity.h"

#include "platform/acad/db_database.h"
#include "platform/acad/db_filer.h"
#include "platform/acad/db_polyline.h"
#include "platform/acad/db_spline.h"
#include "platform/acad/db_text.h"
#include "platform/acad/editor.h"
#include "platform/acad/host_application.h"
#include "platform/windows/code_page.h"

bool g_bTellDraws = false;

namespace {

AcRxClass* g_pClass = nullptr;

class CSampleFields final : public CFieldTable {
public:
    int Count() const override { return 10; }
    CFieldInfo Info(int index) const override {
        // Filed with the name last, declared with it first.
        constexpr const char* names[] = {"m_ptOrigin", "m_nCount",  "m_flag",  "m_dValue",  "m_dNone",
                                         "m_idStyle",  "m_numbers", "m_texts", "m_arLists", "m_strName"};
        return {names[index], index == 9 ? 0 : index + 1, true};
    }
    CFieldValue Get(const AcDbObject& object, int index) const override {
        const auto& sheet = static_cast<const CSampleSheet&>(object);
        switch (index) {
        case 0:
            return sheet.m_ptOrigin;
        case 1:
            return sheet.m_nCount;
        case 2:
            return sheet.m_flag;
        case 3:
            return sheet.m_dValue;
        case 4:
            return sheet.m_dNone;
        case 5:
            return sheet.m_idStyle;
        case 6:
            return sheet.m_arNumbers;
        case 7:
            return sheet.m_arTexts;
        case 8:
            return sheet.m_arLists;
        default:
            return sheet.m_strName;
        }
    }
    int Set(AcDbObject& object, int index, const CFieldValue& value) const override {
        auto& sheet = static_cast<CSampleSheet&>(object);
        switch (index) {
        case 0:
            return Take(value, sheet.m_ptOrigin);
        case 1: {
            const int nTaken = Take(value, sheet.m_nCount);
            sheet.m_nCount = static_cast<Adesk::Int16>(sheet.m_nCount); // as a field of 16 bits does
            return nTaken;
        }
        case 2:
            return Take(value, sheet.m_flag);
        case 3:
            return Take(value, sheet.m_dValue);
        case 4:
            return Take(value, sheet.m_dNone);
        case 5:
            return Take(value, sheet.m_idStyle);
        case 6:
            return Take(value, sheet.m_arNumbers);
        case 7:
            return Take(value, sheet.m_arTexts);
        case 8:
            return Take(value, sheet.m_arLists);
        default:
            return Take(value, sheet.m_strName);
        }
    }

private:
    template <class T>
    static int Take(const CFieldValue& value, T& field) {
        if (const T* const pGiven = std::get_if<T>(&value)) return field = *pGiven, 1;
        return 0;
    }
};

CSampleFields g_fields;

// What looking at a sheet leaves behind in the working drawing.
void ChangeDrawing(double ltscale, const ACHAR* szStyle) {
    AcDbDatabase& drawing = *acdbHostApplicationServices()->workingDatabase();
    drawing.setLtscale(ltscale);
    const CDbOpen<AcDbTextStyleTable> table(drawing.textStyleTableId(), AcDb::kForWrite);
    if (table->has(szStyle)) return;
    auto* const pRecord = new AcDbTextStyleTableRecord;
    pRecord->setName(szStyle);
    AcDbObjectId id;
    table->add(id, pRecord);
    pRecord->close();
    drawing.setTextstyle(id);
}

} // namespace

AcRxClass* CSampleSheet::desc() {
    return g_pClass;
}

Adesk::Boolean CSampleSheet::subWorldDraw(AcGiWorldDraw* pMode) {
    assertReadEnabled();
    if (g_bTellDraws) acutPrintf(L"\ndrawn %ls", WideFromGbk(handle().Hex()).c_str());
    ChangeDrawing(5.0, L"DrawnStyle");
    AcGiGeometry& geometry = *pMode->rawGeometry();
    const AcGePoint3d points[] = {m_ptOrigin, m_ptOrigin + AcGeVector3d(100.0, 0.0, 0.0)};
    geometry.polyline(2, points);
    pMode->subEntityTraits().setColor(1);
    pMode->subEntityTraits().setLineType(AcDbObjectId::kNull);
    pMode->subEntityTraits().setSelectionMarker(4);
    geometry.circularArc(m_ptOrigin, 10.0, AcGeVector3d::kZAxis, AcGeVector3d::kXAxis, 1.5);
    AcGiTextStyle style;
    style.setTextSize(2.5);
    style.setFileName(L"仿宋_GB2312");
    style.setTrackingPercent(80.0);
    geometry.text(m_ptOrigin, AcGeVector3d::kZAxis, AcGeVector3d::kXAxis, L"固结", -1, 0, style);
    AcDbPolyline polyline;
    polyline.addVertexAt(0, AcGePoint2d(0.0, 50.0), 0.5, 0.25, 0.25);
    polyline.addVertexAt(1, AcGePoint2d(10.0, 50.0));
    geometry.pline(polyline);
    AcGePoint3dArray fit;
    fit.append(AcGePoint3d(0.0, 60.0, 0.0));
    fit.append(AcGePoint3d(10.0, 70.0, 0.0));
    geometry.spline(AcDbSpline(fit));
    return Adesk::kTrue;
}

void CSampleSheet::modified(const AcDbObject* pObject) {
    if (g_bTellDraws)
        acutPrintf(L"\n%ls heard of %ls", WideFromGbk(handle().Hex()).c_str(),
                   WideFromGbk(pObject->handle().Hex()).c_str());
}

Acad::ErrorStatus CSampleSheet::dwgOutFields(AcDbDwgFiler* pFiler) const {
    AcDbEntity::dwgOutFields(pFiler);
    pFiler->writePoint3d(m_ptOrigin);
    return pFiler->writeInt32(m_nCount);
}

Acad::ErrorStatus CSampleSheet::dwgInFields(AcDbDwgFiler* pFiler) {
    AcDbEntity::dwgInFields(pFiler);
    pFiler->readPoint3d(&m_ptOrigin);
    return pFiler->readInt32(&m_nCount);
}

Acad::ErrorStatus CSampleSheet::subExplode(AcDbVoidPtrArray& entitySet) const {
    ChangeDrawing(99.0, L"ExplodedStyle");
    entitySet.append(new AcDbText(m_ptOrigin, L"固结", AcDbObjectId::kNull, 2.5));
    if (m_nCount == 0) return Acad::eInvalidInput; // after a part was made
    return Acad::eOk;
}

Acad::ErrorStatus CSampleSheet::subGetGripPoints(AcGePoint3dArray& gripPoints, AcDbIntArray&,
                                                 AcDbIntArray&) const {
    gripPoints.append(m_ptOrigin);
    gripPoints.append(m_ptOrigin + AcGeVector3d(100.0, 0.0, 0.0));
    return Acad::eOk;
}

void RegisterSampleSheet() {
    g_pClass = newAcRxClass(
        L"CSampleSheet", L"AcDbEntity", 31, 55, 255, []() -> AcRxObject* { return new CSampleSheet; },
        L"SAMPLESHEET", L"SAMPLE");
    g_pClass->addX(CFieldTable::desc(), &g_fields);
}

void UnregisterSampleSheet() {
    g_pClass->delX(CFieldTable::desc());
    deleteAcRxClass(g_pClass);
    g_pClass = nullptr;
}
