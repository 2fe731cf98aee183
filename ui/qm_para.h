#pragma once

#include "platform/mfc/string.h"

/// A record of settings that reads or writes itself, key by key. The keys stand in the settings file, or in
/// the project's with a bProjectFile that is not 0. All results are 1: a missing key gives the default, a
/// file that cannot be written stays as it is.
class CQMPara {
public:
    CQMPara() = default;
    CQMPara(const CQMPara&) = delete;
    CQMPara& operator=(const CQMPara&) = delete;

    virtual int ExchangeFloat(const CString& strSection, const CString& strKey, float fDefault,
                              float* pfValue, int bProjectFile);
    virtual int ExchangeDouble(const CString& strSection, const CString& strKey, double dDefault,
                               double* pdValue, int bProjectFile);
    /// Reads 254 bytes at most.
    virtual int ExchangeString(const CString& strSection, const CString& strKey, const CString& strDefault,
                               CString* pText, int bProjectFile);
    virtual int ExchangeInt(const CString& strSection, const CString& strKey, int nDefault, int* pnValue,
                            int bProjectFile);
    /// Exchanges all of the record's keys: not 0 reads, 0 writes.
    virtual int Exchange(int bLoad) = 0;

    int m_bLoad = 0; ///< the direction of the last exchange

protected:
    ~CQMPara() = default;
};
