#include "chart/chart_entity.h"

#include "chart/chart_fields.h"
#include "drawing/module_class.h"

#include <new>

Adesk::Int32 g_bChartDataChanged = 0;

namespace {
constinit CModuleClass g_chartClass(L"CBRENChart", L"CBRENCHART");

AcRxObject* MakeChart() {
    return new (std::nothrow) CBRENChart;
}
} // namespace

AcRxClass* CBRENChart::desc() {
    return g_chartClass.Desc();
}

CBRENChart* CBRENChart::cast(const AcRxObject* pObject) {
    if (!pObject || !pObject->isKindOf(desc())) return nullptr;
    return const_cast<CBRENChart*>(static_cast<const CBRENChart*>(pObject));
}

void CBRENChart::rxInit() {
    g_chartClass.Register(&MakeChart, ChartFields());
}

void CBRENChart::rxExit() {
    g_chartClass.Unregister();
}

Acad::ErrorStatus CBRENChart::setColorIndex(Adesk::UInt16 color, Adesk::Boolean) {
    assertWriteEnabled(1, 1);
    m_nColor = color;
    m_bColorChanging = 1;
    return AcDbEntity::setColorIndex(color, 1);
}

void CBRENChart::saveAs(AcGiWorldDraw* pMode, AcDb::SaveType saveType) {
    m_nPolylineMode = 1;
    AcDbEntity::saveAs(pMode, saveType);
    m_nPolylineMode = 0;
}
