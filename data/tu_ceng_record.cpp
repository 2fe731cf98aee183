#include "data/tu_ceng_record.h"

namespace {

constexpr const char* g_pTuCengQuery =
    "SELECT GCSY,ZKBH,TCCDSD,TCHD,TCMC FROM z_g_TuCeng WHERE GCSY > -1 and %s;";

std::vector<CColumnBinding> TuCengColumns() {
    using Row = CTuCengRow;
    return {
        RecordColumn(1, &Row::m_nGCSY), RecordColumn(2, &Row::m_szZKBH), RecordColumn(3, &Row::m_fTCCDSD),
        RecordColumn(4, &Row::m_fTCHD), RecordColumn(5, &Row::m_szTCMC),
    };
}

} // namespace

CTuCengRecord::CTuCengRecord()
    : CTuCengRow{}
    , CRecordAccessor(g_pTuCengQuery, TuCengColumns(), static_cast<CTuCengRow*>(this), sizeof(CTuCengRow)) {}
