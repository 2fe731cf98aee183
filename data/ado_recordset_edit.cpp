// Writing the current or a new row.

#include "data/ado_recordset.h"
#include "platform/windows/code_page.h"

int CADORecordset::AddNew() {
    if (!Attempt([&] { m_pRecordset->AddNew(); })) return 0;
    m_nEditStatus = EditStatus_New;
    return 1;
}

int CADORecordset::Edit() {
    // only a row that is there can be edited, and asking for its place finds that out
    if (!Attempt([&] { (void)m_pRecordset->GetBookmark(); })) return 0;
    m_nEditStatus = EditStatus_Edit;
    return 1;
}

int CADORecordset::Update() {
    return Leave([&] { m_pRecordset->Update(); });
}

int CADORecordset::CancelUpdate() {
    return Leave([&] { m_pRecordset->CancelUpdate(); });
}

int CADORecordset::Delete() {
    return Leave([&] { m_pRecordset->Delete(ADODB::adAffectCurrent); });
}

int CADORecordset::PutFieldValue(const CADOField& field, const CVariant& value) {
    return Attempt([&] { field.In(*m_pRecordset).PutValue(value); });
}

int CADORecordset::SetFieldText(const CADOField& field, const CString& strValue) {
    return PutFieldValue(field, CVariant(WideFromGbk(strValue.View())));
}

int CADORecordset::SetFieldInt(const CADOField& field, int nValue) {
    return PutFieldValue(field, CVariant::Int(nValue));
}

int CADORecordset::SetFieldLong(const CADOField& field, std::int32_t nValue) {
    return PutFieldValue(field, CVariant(nValue));
}

int CADORecordset::SetFieldDouble(const CADOField& field, double dValue) {
    return PutFieldValue(field, CVariant(dValue));
}

int CADORecordset::SetFieldBool(const CADOField& field, int bValue) {
    return PutFieldValue(field, CVariant(bValue != 0));
}

int CADORecordset::SetFieldDate(const CADOField& field, double dDays) {
    return PutFieldValue(field, CVariant::Date(dDays));
}

int CADORecordset::SetFieldNull(const CADOField& field) {
    return PutFieldValue(field, CVariant::Null());
}

int CADORecordset::AppendChunk(const CADOField& field, const std::vector<unsigned char>& arBytes) {
    return Attempt([&] { field.In(*m_pRecordset).AppendChunk(CVariant(arBytes)); });
}
