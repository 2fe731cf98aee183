#include "data/san_zhou_record.h"

namespace {

constexpr const char* g_pSanZhouQuery = "SELECT * FROM z_c_SanZhou WHERE GCSY > -1 and %s;";

std::vector<CColumnBinding> SanZhouColumns() {
    using Row = CSanZhouRow;
    return {
        RecordColumn(1, &Row::m_nGCSY),
        RecordColumn(2, &Row::m_szZKBH),
        RecordColumn(3, &Row::m_szQYBH),
        RecordColumn(4, &Row::m_szSYFF, &Row::m_dwStatusSYFF),
        RecordColumn(5, &Row::m_szSYRQ),
        RecordColumn(6, &Row::m_fUUC, &Row::m_dwStatusUUC),
        RecordColumn(7, &Row::m_fUUF, &Row::m_dwStatusUUF),
        RecordColumn(8, &Row::m_fCUC, &Row::m_dwStatusCUC),
        RecordColumn(9, &Row::m_fCUF, &Row::m_dwStatusCUF),
        RecordColumn(10, &Row::m_fCUCE, &Row::m_dwStatusCUCE),
        RecordColumn(11, &Row::m_fCUFE, &Row::m_dwStatusCUFE),
        RecordColumn(12, &Row::m_fCDC, &Row::m_dwStatusCDC),
        RecordColumn(13, &Row::m_fCDF, &Row::m_dwStatusCDF),
    };
}

} // namespace

CSanZhouRecord::CSanZhouRecord()
    : CSanZhouRow{}
    , CRecordAccessor(g_pSanZhouQuery, SanZhouColumns(), static_cast<CSanZhouRow*>(this),
                      sizeof(CSanZhouRow)) {}
