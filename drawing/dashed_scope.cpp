#include "drawing/dashed_scope.h"

#include "drawing/styles.h"
#include "platform/acad/host_application.h"

namespace {
constexpr Adesk::UInt16 g_nDashedColor = 2;
}

CDashedScope::CDashedScope(AcGiWorldDraw* pMode, Adesk::UInt16 nColorAfter)
    : m_pMode(pMode)
    , m_nColorAfter(nColorAfter)
    , m_pDatabase(acdbHostApplicationServices()->workingDatabase()) {
    if (!m_pDatabase) {
        m_pTemporary = std::make_unique<AcDbDatabase>();
        m_pDatabase = m_pTemporary.get();
    }
    AcDbObjectId idDashed;
    LoadLinetypeId("Dashed2", m_pDatabase, idDashed);
    m_pMode->subEntityTraits().setLineType(idDashed);
    m_pMode->subEntityTraits().setColor(g_nDashedColor);
    m_pMode->subEntityTraits().setSelectionMarker(1);
}

CDashedScope::~CDashedScope() {
    AcDbObjectId idContinuous;
    LoadLinetypeId("Continuous", m_pDatabase, idContinuous);
    m_pMode->subEntityTraits().setLineType(idContinuous);
    m_pMode->subEntityTraits().setColor(m_nColorAfter);
}
