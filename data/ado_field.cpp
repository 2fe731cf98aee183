#include "data/ado_field.h"

#include "platform/windows/code_page.h"

ADODB::Field& CADOField::In(ADODB::Recordset& rows) const {
    if (const int* pPosition = std::get_if<int>(&m_key)) return rows.GetFields().GetItem(long{*pPosition});
    return rows.GetFields().GetItem(WideFromGbk(std::get<CString>(m_key).View()));
}
