#pragma once

#include "data/record_accessor.h"

/// The columns of a row.
struct CTuCengRow {
    std::int32_t m_nGCSY;
    CRecordText m_szZKBH; ///< borehole number
    float m_fTCCDSD;      ///< depth of the layer's bottom
    float m_fTCHD;        ///< thickness
    CRecordText m_szTCMC; ///< name
};

/// A soil layer of a borehole, table z_g_TuCeng. Depths in metres.
class CTuCengRecord : public CTuCengRow, public CRecordAccessor {
public:
    CTuCengRecord();
};
