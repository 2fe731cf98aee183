// Reading the current row.

#include "data/ado_recordset.h"
#include "data/ado_value.h"
#include "platform/windows/code_page.h"

int CADORecordset::GetFieldValue(const CADOField& field, CVariant* pValue) {
    return Attempt([&] { *pValue = field.In(*m_pRecordset).GetValue(); });
}

int CADORecordset::IsFieldNull(const CADOField& field) {
    CVariant value;
    return GetFieldValue(field, &value) && value.IsNull();
}

int CADORecordset::IsFieldEmpty(const CADOField& field) {
    CVariant value;
    return GetFieldValue(field, &value) && (value.IsNull() || value.Type() == VT_EMPTY);
}

int CADORecordset::GetFieldDouble(const CADOField& field, double* pdValue) {
    CVariant value;
    if (!GetFieldValue(field, &value)) return 0;
    *pdValue = DoubleOfValue(value);
    return 1;
}

int CADORecordset::GetFieldFloat(const CADOField& field, float* pfValue) {
    double dValue = 0.0;
    if (!GetFieldDouble(field, &dValue)) return 0;
    *pfValue = static_cast<float>(dValue);
    return 1;
}

int CADORecordset::GetFieldInt(const CADOField& field, int* pnValue) {
    CVariant value;
    if (!GetFieldValue(field, &value)) return 0;
    *pnValue = IntOfValue(value);
    return 1;
}

int CADORecordset::GetFieldUInt(const CADOField& field, UINT* puValue) {
    int nValue = 0;
    if (!GetFieldInt(field, &nValue)) return 0;
    *puValue = static_cast<UINT>(nValue);
    return 1;
}

int CADORecordset::GetFieldBool(const CADOField& field, int* pbValue) {
    int nValue = 0;
    if (!GetFieldInt(field, &nValue)) return 0;
    *pbValue = nValue != 0;
    return 1;
}

int CADORecordset::GetFieldText(const CADOField& field, CString* pText, const CString& /*strDateFormat*/) {
    CVariant value;
    return GetFieldValue(field, &value) && TextOfValue(value, pText);
}

int CADORecordset::GetChunk(const CADOField& field, std::vector<unsigned char>* pBytes) {
    return Attempt([&] {
        ADODB::Field& bytes = field.In(*m_pRecordset);
        const CVariant chunk = bytes.GetChunk(bytes.GetActualSize());
        if (chunk.Type() == VT_BSTR) ADODB::RaiseAdoError(ADODB::adErrDataConversion);
        *pBytes = chunk.Bytes();
    });
}

int CADORecordset::GetRowText(CString* pText, int nRows, const CString& strColumnEnd,
                              const CString& strRowEnd, const CString& strNull) {
    return Leave([&] {
        *pText =
            GbkFromWide(m_pRecordset->GetString(ADODB::adClipString, nRows, WideFromGbk(strColumnEnd.View()),
                                                WideFromGbk(strRowEnd.View()), WideFromGbk(strNull.View())));
    });
}
