#include "frame/frame_fields.h"

#include "drawing/field_rows.h"
#include "frame/frame_entity.h"

namespace {
// In the order of the drawing file's record; the number is the place in the class.
const CFieldRow<CBRENFrame> g_frameRows[] = {
    {"m_ptBase", 0, &CBRENFrame::m_ptBase},
    {"m_dTextHeight", 2, &CBRENFrame::m_dTextHeight},
    {"m_dBorderWidth", 3, &CBRENFrame::m_dBorderWidth},
    {"m_nPolylineMode", 4, &CBRENFrame::m_nPolylineMode},
    {"m_nYear", 23, &CBRENFrame::m_nYear},
    {"m_nMonth", 24, &CBRENFrame::m_nMonth},
    {"m_nDay", 25, &CBRENFrame::m_nDay},
    {"m_nGCSY", 5, &CBRENFrame::m_nGCSY},
    {"m_nGCBZ", 26, &CBRENFrame::m_nGCBZ},
    {"m_strZKBH", 6, &CBRENFrame::m_strZKBH},
    {"m_strQYBH", 7, &CBRENFrame::m_strQYBH},
    {"m_strGCMC", 8, &CBRENFrame::m_strGCMC},
    {"m_strSYFF", 9, &CBRENFrame::m_strSYFF},
    {"m_strQYSD", 10, &CBRENFrame::m_strQYSD},
    {"m_strGCBH", 11, &CBRENFrame::m_strGCBH},
    {"m_sJCZ", 19, &CBRENFrame::m_sJCZ},
    {"m_sReserved", 20, &CBRENFrame::m_sReserved},
    {"m_sWCDW", 21, &CBRENFrame::m_sWCDW},
    {"m_sSYZ", 22, &CBRENFrame::m_sSYZ},
    {"m_idTextStyle", 12, &CBRENFrame::m_idTextStyle},
    {"m_idBannerStyle", 13, &CBRENFrame::m_idBannerStyle},
    {"m_bRQ", 14, CFlagMember<CBRENFrame>{&CBRENFrame::m_bRQ}},
    {"m_bJCZ", 15, CFlagMember<CBRENFrame>{&CBRENFrame::m_bJCZ}},
    {"m_bSYZ", 16, CFlagMember<CBRENFrame>{&CBRENFrame::m_bSYZ}},
    {"m_bWCDW", 17, CFlagMember<CBRENFrame>{&CBRENFrame::m_bWCDW}},
    {"m_bReserved", 18, CFlagMember<CBRENFrame>{&CBRENFrame::m_bReserved}},
    {"m_vecGripOffset", 1, &CBRENFrame::m_vecGripOffset, CFiling::None},
};
} // namespace

std::span<const CFieldRow<CBRENFrame>> FrameRows() {
    return g_frameRows;
}

CFieldTable* FrameFields() {
    static CFieldTableOf<CBRENFrame> table(g_frameRows);
    return &table;
}
