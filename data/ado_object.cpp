#include "data/ado_object.h"

#include "platform/windows/code_page.h"

void CADOObject::KeepError(const CComError& error) {
    m_dwLastError = static_cast<DWORD>(error.Error());
    m_strLastError = ErrorPrefix();
    m_strLastError.AppendFormat(
        "%s Error\n\tCode = %08lx\n\tCode meaning = %s\n\tSource = %s\n\tDescription = %s\n", m_pszClass,
        static_cast<unsigned long>(m_dwLastError), error.ErrorMessage().c_str(),
        GbkFromWide(error.Source()).c_str(), GbkFromWide(error.Description()).c_str());
}
