#pragma once

#include "platform/acad/db_database.h"
#include "platform/acad/display_list.h"

/// An entity, the grips of it that are moved (from 0), and how far.
struct CGripMove {
    AcDbObjectId m_id;
    AcDbIntArray m_indices;
    AcGeVector3d m_vecOffset;
};

/// What the entity draws during such a drag; the drawing stays as it is. The status of the class when it
/// refuses, and the picture stays as it was then.
Acad::ErrorStatus DragGrips(AcDbDatabase& drawing, const CGripMove& move, CDisplayList* pPicture);
