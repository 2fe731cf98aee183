#pragma once

#include "data/record_accessor.h"

/// The columns of a row, then the status words of those that can be NULL.
struct CQuYangRow {
    std::int32_t m_nGCSY;
    CRecordText m_szZKBH; ///< borehole number
    CRecordText m_szQYBH; ///< sample number
    float m_fQYSD;        ///< depth of the sample's top
    float m_fQYHD;        ///< thickness
    float m_fQYHSL;       ///< water content
    std::uint8_t m_nQYLX; ///< sample type
    float m_fQYSY;        ///< plastic limit
    float m_fQYYX;        ///< liquid limit
    DBSTATUS m_dwStatusQYSD;
    DBSTATUS m_dwStatusQYHD;
    DBSTATUS m_dwStatusQYHSL;
    DBSTATUS m_dwStatusQYSY;
    DBSTATUS m_dwStatusQYYX;
};

/// A sample of the register, table z_c_QuYang. Depths in metres, the others in percent.
class CQuYangRecord : public CQuYangRow, public CRecordAccessor {
public:
    CQuYangRecord();
};
