#pragma once

#include "platform/acad/db_database.h"
#include "platform/acad/gi_world_draw.h"

#include <memory>

/// Draws dashed for the length of a scope: line type "Dashed2" and colour index 2; at the end line type
/// "Continuous" and the given colour. The line types are looked up in the working drawing, or in a temporary
/// one when there is none. A line type that could not be looked up is a null id, and the drawing goes on.
class CDashedScope {
public:
    CDashedScope(AcGiWorldDraw* pMode, Adesk::UInt16 nColorAfter);
    ~CDashedScope();
    CDashedScope(const CDashedScope&) = delete;
    CDashedScope& operator=(const CDashedScope&) = delete;

private:
    AcGiWorldDraw* m_pMode;
    Adesk::UInt16 m_nColorAfter;
    std::unique_ptr<AcDbDatabase> m_pTemporary;
    AcDbDatabase* m_pDatabase;
};

/// The same look for an entity of the explode form. The line type is looked up in the working drawing only.
void SetDashed(AcDbEntity& entity);
