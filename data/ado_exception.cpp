#include "data/ado_exception.h"

const CRuntimeClass CADOException::classCADOException = {"CADOException", &CException::classCException};

CADOException::CADOException(std::int32_t lErrorCode, const CString& strError)
    : m_lErrorCode(lErrorCode)
    , m_strError(strError) {}

void ThrowADOException(std::int32_t lErrorCode, const CString& strError) {
    throw CADOException(lErrorCode, strError);
}
