#include "drawing/dashed_scope.h"

#include "drawing/line_types.h"
#include "platform/acad/host_application.h"

namespace {
constexpr Adesk::UInt16 g_nDashedColor = 2;
} // namespace

CDashedScope::CDashedScope(AcGiWorldDraw* pMode, Adesk::UInt16 nColorAfter)
    : m_pMode(pMode)
    , m_nColorAfter(nColorAfter)
    , m_pDatabase(acdbHostApplicationServices()->workingDatabase()) {
    if (!m_pDatabase) {
        m_pTemporary = std::make_unique<AcDbDatabase>();
        m_pDatabase = m_pTemporary.get();
    }
    AcDbObjectId idDashed;
    LoadLinetypeId(g_pDashedLinetype, m_pDatabase, idDashed);
    m_pMode->subEntityTraits().setLineType(idDashed);
    m_pMode->subEntityTraits().setColor(g_nDashedColor);
    m_pMode->subEntityTraits().setSelectionMarker(1);
}

CDashedScope::~CDashedScope() {
    AcDbObjectId idContinuous;
    LoadLinetypeId(g_pContinuousLinetype, m_pDatabase, idContinuous);
    m_pMode->subEntityTraits().setLineType(idContinuous);
    m_pMode->subEntityTraits().setColor(m_nColorAfter);
}

void SetDashed(AcDbEntity& entity) {
    AcDbObjectId idDashed;
    LoadLinetypeId(g_pDashedLinetype, nullptr, idDashed);
    entity.setLinetype(idDashed);
    entity.setColorIndex(g_nDashedColor);
}
