#pragma once

#include "platform/mfc/collections.h"

/// What is known of one sample, all as text.
struct QYPropty {
    CString m_strZKBH;
    CString m_strQYBH;
    CString m_strSYFF;
    CString m_strDepth; ///< of its top, m
    CString m_strWater; ///< water content, percent
    CString m_strIL;    ///< liquidity index
    CString m_strIP;    ///< plasticity index
    CString m_strLayer;
};

/// A borehole with its samples; or, with an empty number, samples of all of them.
struct arZKBH {
    CString m_strZKBH;
    CStringArray m_saQY;
    CArray<QYPropty> m_arQY;
};
