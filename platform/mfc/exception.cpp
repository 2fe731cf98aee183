#include "platform/mfc/exception.h"

const CRuntimeClass CException::classCException = {"CException", nullptr};
const CRuntimeClass CInvalidArgException::classCInvalidArgException = {"CInvalidArgException",
                                                                       &CException::classCException};

BOOL CException::IsKindOf(const CRuntimeClass* pClass) const {
    for (const CRuntimeClass* pOwn = GetRuntimeClass(); pOwn; pOwn = pOwn->m_pBaseClass)
        if (pOwn == pClass) return TRUE;
    return FALSE;
}
