// The rows a second time: in another recordset, in a file.

#include "data/ado_recordset.h"
#include "platform/windows/code_page.h"

int CADORecordset::Clone(CADORecordset* pClone) {
    if (!pClone->Close()) return 0;
    return Attempt([&] {
        pClone->m_pRecordset = m_pRecordset->Clone();
        pClone->m_pConnection = m_pConnection;
        pClone->m_strQuery = m_strQuery;
    });
}

int CADORecordset::SaveAsXml(const CString& strPath) {
    return Leave([&] { m_pRecordset->Save(WideFromGbk(strPath.View()), ADODB::adPersistXML); });
}

int CADORecordset::OpenXml(const CString& strPath) {
    if (!Close()) return 0;
    return Attempt([&] {
        m_pRecordset = std::make_shared<ADODB::Recordset>();
        m_pRecordset->Open(WideFromGbk(strPath.View()), L"Provider=MSPersist;", ADODB::adOpenStatic,
                           ADODB::adLockOptimistic);
    });
}
