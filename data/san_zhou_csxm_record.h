#pragma once

#include "data/record_accessor.h"

/// The columns of a row.
struct CSanZhouCSXMRow {
    std::int32_t m_nGCSY;
    CRecordText m_szZKBH;   ///< borehole number
    CRecordText m_szQYBH;   ///< sample number
    std::int32_t m_nSJBH;   ///< specimen inside the sample
    std::int32_t m_nSHJHXH; ///< running number of the reading
    float m_fWY;            ///< cell pressure, kPa
    float m_fSYGD;          ///< specimen height, mm
    float m_fSYZJ;          ///< specimen diameter, mm
    float m_fCLHXS;         ///< proving ring coefficient, N a dial unit
    float m_fGJKXYL;        ///< pore pressure under the cell pressure, kPa
    float m_fCLHDS;         ///< proving ring reading, dial units
    float m_fZXBX;          ///< axial deformation, 0.01 mm
    float m_fJQPS;          ///< water drained during shear, cm³
    float m_fKXYL;          ///< pore pressure during shear, kPa
    float m_fGJPS;          ///< water drained during consolidation, cm³; of either sign
    std::int8_t m_nJLLX;    ///< 0 curve point, 1 Mohr point, 2 both
};

/// One reading of one specimen, table z_c_SanZhouCSXM.
class CSanZhouCSXMRecord : public CSanZhouCSXMRow, public CRecordAccessor {
public:
    CSanZhouCSXMRecord();
};
