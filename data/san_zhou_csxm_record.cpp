#include "data/san_zhou_csxm_record.h"

namespace {

constexpr const char* g_pSanZhouCsxmQuery = "SELECT * FROM z_c_SanZhouCSXM WHERE GCSY > -1 and %s;";

std::vector<CColumnBinding> SanZhouCsxmColumns() {
    using Row = CSanZhouCSXMRow;
    return {
        RecordColumn(1, &Row::m_nGCSY),    RecordColumn(2, &Row::m_szZKBH),  RecordColumn(3, &Row::m_szQYBH),
        RecordColumn(4, &Row::m_nSJBH),    RecordColumn(5, &Row::m_nSHJHXH), RecordColumn(6, &Row::m_fWY),
        RecordColumn(7, &Row::m_fSYGD),    RecordColumn(8, &Row::m_fSYZJ),   RecordColumn(9, &Row::m_fCLHXS),
        RecordColumn(10, &Row::m_fGJKXYL), RecordColumn(11, &Row::m_fCLHDS), RecordColumn(12, &Row::m_fZXBX),
        RecordColumn(13, &Row::m_fJQPS),   RecordColumn(14, &Row::m_fKXYL),  RecordColumn(15, &Row::m_fGJPS),
        RecordColumn(16, &Row::m_nJLLX),
    };
}

} // namespace

CSanZhouCSXMRecord::CSanZhouCSXMRecord()
    : CSanZhouCSXMRow{}
    , CRecordAccessor(g_pSanZhouCsxmQuery, SanZhouCsxmColumns(), static_cast<CSanZhouCSXMRow*>(this),
                      sizeof(CSanZhouCSXMRow)) {}
