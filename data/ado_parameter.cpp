#include "data/ado_parameter.h"

#include "data/ado_value.h"
#include "platform/windows/code_page.h"

CADOParameter::CADOParameter(ADODB::DataTypeEnum nType, int nSize, ADODB::ParameterDirectionEnum nDirection,
                             const CString& strName)
    : CADOObject("CADOParameter")
    , m_pParameter(
          ADODB::Command::CreateParameter(WideFromGbk(strName.View()), nType, nDirection, long{nSize}))
    , m_strName(strName)
    , m_nType(nType) {}

int CADOParameter::PutValue(const CVariant& value) {
    return Attempt([&] { m_pParameter->PutValue(value); });
}

int CADOParameter::SetInt(int nValue) {
    return PutValue(CVariant::Int(nValue));
}

int CADOParameter::SetLong(std::int32_t nValue) {
    return PutValue(CVariant(nValue));
}

int CADOParameter::SetDouble(double dValue) {
    return PutValue(CVariant(dValue));
}

int CADOParameter::SetText(const CString& strValue) {
    return PutValue(CVariant(WideFromGbk(strValue.View())));
}

int CADOParameter::SetDate(double dDays) {
    return PutValue(CVariant::Date(dDays));
}

int CADOParameter::GetInt(int* pnValue) {
    return Attempt([&] { *pnValue = IntOfValue(m_pParameter->GetValue()); });
}

int CADOParameter::GetLong(std::int32_t* pnValue) {
    return GetInt(pnValue);
}

int CADOParameter::GetDouble(double* pdValue) {
    return Attempt([&] { *pdValue = DoubleOfValue(m_pParameter->GetValue()); });
}

int CADOParameter::GetText(CString* pText) {
    int bText = 0;
    return Attempt([&] { bText = TextOfValue(m_pParameter->GetValue(), pText); }) && bText;
}

int CADOParameter::GetDate(double* pdDays) {
    return Attempt([&] {
        const CVariant& value = m_pParameter->GetValue();
        if (value.Type() != VT_DATE) ADODB::RaiseAdoError(ADODB::adErrDataConversion);
        *pdDays = value.R8();
    });
}
