#include "chart/chart_entity.h"

#include "chart/chart_fields.h"
#include "platform/acad/field_table.h"
#include "platform/acad/rx_registry.h"

#include <new>

Adesk::Int32 g_bChartDataChanged = 0;

namespace {
constexpr const ACHAR* g_pClassName = L"CBRENChart";
AcRxClass* g_pChartClass = nullptr;

AcRxObject* MakeChart() {
    return new (std::nothrow) CBRENChart;
}
} // namespace

AcRxClass* CBRENChart::desc() {
    if (!g_pChartClass) {
        auto* pDictionary = static_cast<AcRxDictionary*>(acrxSysRegistry()->at(ACDB_CLASS_DICTIONARY));
        g_pChartClass = static_cast<AcRxClass*>(pDictionary->at(g_pClassName));
    }
    return g_pChartClass;
}

CBRENChart* CBRENChart::cast(const AcRxObject* pObject) {
    if (!pObject || !pObject->isKindOf(desc())) return nullptr;
    return const_cast<CBRENChart*>(static_cast<const CBRENChart*>(pObject));
}

void CBRENChart::rxInit() {
    if (desc()) return;
    g_pChartClass =
        newAcRxClass(g_pClassName, L"AcDbEntity", 31, 55, 255, &MakeChart, L"CBRENCHART", L"CBRENCHART");
    if (g_pChartClass) g_pChartClass->addX(CFieldTable::desc(), ChartFields());
}

void CBRENChart::rxExit() {
    if (!desc()) return;
    desc()->delX(CFieldTable::desc());
    deleteAcRxClass(g_pChartClass);
    g_pChartClass = nullptr;
}

Acad::ErrorStatus CBRENChart::setColorIndex(Adesk::UInt16 color, Adesk::Boolean) {
    assertWriteEnabled(1, 1);
    m_nColor = color;
    m_bColorChanging = 1;
    return AcDbEntity::setColorIndex(color, 1);
}
