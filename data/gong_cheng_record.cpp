#include "data/gong_cheng_record.h"

namespace {

constexpr const char* g_pGongChengQuery =
    "SELECT GCSY,GCBH,GCMC,GCBZ,GCSJ FROM x_GongCheng WHERE GCSY > -1 and %s;";

std::vector<CColumnBinding> GongChengColumns() {
    using Row = CGongChengRow;
    return {
        RecordColumn(1, &Row::m_nGCSY), RecordColumn(2, &Row::m_szGCBH), RecordColumn(3, &Row::m_szGCMC),
        RecordColumn(4, &Row::m_nGCBZ), RecordColumn(5, &Row::m_nGCSJ),
    };
}

} // namespace

CGongChengRecord::CGongChengRecord()
    : CGongChengRow{}
    , CRecordAccessor(g_pGongChengQuery, GongChengColumns(), static_cast<CGongChengRow*>(this),
                      sizeof(CGongChengRow)) {}
