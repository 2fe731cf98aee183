#pragma once

#include "data/record_accessor.h"

/// The columns of a row, then the status words of those that can be NULL.
struct CSanZhouRow {
    std::int32_t m_nGCSY;
    CRecordText m_szZKBH; ///< borehole number
    CRecordText m_szQYBH; ///< sample number
    CRecordText m_szSYFF; ///< test method
    CRecordText m_szSYRQ; ///< date of the stored result, year.month.day
    float m_fUUC;         ///< c, unconsolidated undrained
    float m_fUUF;
    float m_fCUC; ///< c, consolidated undrained
    float m_fCUF;
    float m_fCUCE; ///< c', consolidated undrained
    float m_fCUFE;
    float m_fCDC; ///< c', consolidated drained
    float m_fCDF;
    DBSTATUS m_dwStatusSYFF;
    DBSTATUS m_dwStatusUUC;
    DBSTATUS m_dwStatusUUF;
    DBSTATUS m_dwStatusCUC;
    DBSTATUS m_dwStatusCUF;
    DBSTATUS m_dwStatusCUCE;
    DBSTATUS m_dwStatusCUFE;
    DBSTATUS m_dwStatusCDC;
    DBSTATUS m_dwStatusCDF;
};

/// A sample's test method and adopted strength values, table z_c_SanZhou. c in kPa, friction angles in
/// degrees.
class CSanZhouRecord : public CSanZhouRow, public CRecordAccessor {
public:
    CSanZhouRecord();
};
