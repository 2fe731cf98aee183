#include "data/qu_yang_record.h"

namespace {

constexpr const char* g_pQuYangQuery =
    "SELECT GCSY,ZKBH,QYBH,QYSD,QYHD,QYHSL,QYLX,QYSY,QYYX FROM z_c_QuYang WHERE GCSY > -1 and %s;";

std::vector<CColumnBinding> QuYangColumns() {
    using Row = CQuYangRow;
    return {
        RecordColumn(1, &Row::m_nGCSY),
        RecordColumn(2, &Row::m_szZKBH),
        RecordColumn(3, &Row::m_szQYBH),
        RecordColumn(4, &Row::m_fQYSD, &Row::m_dwStatusQYSD),
        RecordColumn(5, &Row::m_fQYHD, &Row::m_dwStatusQYHD),
        RecordColumn(6, &Row::m_fQYHSL, &Row::m_dwStatusQYHSL),
        RecordColumn(7, &Row::m_nQYLX),
        RecordColumn(8, &Row::m_fQYSY, &Row::m_dwStatusQYSY),
        RecordColumn(9, &Row::m_fQYYX, &Row::m_dwStatusQYYX),
    };
}

} // namespace

CQuYangRecord::CQuYangRecord()
    : CQuYangRow{}
    , CRecordAccessor(g_pQuYangQuery, QuYangColumns(), static_cast<CQuYangRow*>(this), sizeof(CQuYangRow)) {}
