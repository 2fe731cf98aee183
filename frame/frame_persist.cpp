// The frame's record in a drawing file.

#include "drawing/field_filing.h"
#include "frame/frame_entity.h"
#include "frame/frame_fields.h"

namespace {
constexpr std::size_t g_nLongestText = 99; // bytes of the code page
} // namespace

Acad::ErrorStatus CBRENFrame::dwgOutFields(AcDbDwgFiler* pFiler) const {
    assertReadEnabled();
    if (const Acad::ErrorStatus status = AcDbEntity::dwgOutFields(pFiler); status != Acad::eOk) return status;
    WriteFields(*this, FrameRows(), pFiler, g_nLongestText);
    return Acad::eOk;
}

Acad::ErrorStatus CBRENFrame::dwgInFields(AcDbDwgFiler* pFiler) {
    assertWriteEnabled(1, 1);
    if (const Acad::ErrorStatus status = AcDbEntity::dwgInFields(pFiler); status != Acad::eOk) return status;
    ReadFields(*this, FrameRows(), pFiler);
    return Acad::eOk;
}
