#pragma once

#include "platform/mfc/string.h"

/// What the sample register and the layer table say of one sample, as text.
struct CSampleContext {
    CString m_strDepth; ///< of its top, m
    CString m_strWater; ///< water content, percent
    CString m_strIL;    ///< liquidity index
    CString m_strIP;    ///< plasticity index
    CString m_strLayer; ///< the soil's name; a blank when no layer holds the whole sample
};

/// Reads it. 0, reported, when the sample is not in the register. *pbQuYangOk and *pbTuCengOk become 0 for a
/// fault, reported with strShown for the sample, of the register or of the layers; else they are left.
int ReadSampleContext(int nGCSY, const CString& strZKBH, const CString& strQYBH, const CString& strShown,
                      CSampleContext* context, int* pbQuYangOk, int* pbTuCengOk);
