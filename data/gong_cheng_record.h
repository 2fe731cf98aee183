#pragma once

#include "data/record_accessor.h"

/// The columns of a row.
struct CGongChengRow {
    std::int32_t m_nGCSY;
    CRecordText m_szGCBH; ///< project number
    CRecordText m_szGCMC; ///< project name
    std::int16_t m_nGCBZ; ///< project standard
    std::int32_t m_nGCSJ; ///< time stamp
};

/// A project of the register, table x_GongCheng.
class CGongChengRecord : public CGongChengRow, public CRecordAccessor {
public:
    CGongChengRecord();
};
