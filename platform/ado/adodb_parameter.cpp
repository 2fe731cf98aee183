#include "platform/ado/adodb_parameter.h"

#include <algorithm>

#include "platform/ado/com_error.h"
#include "platform/ado/data_type.h"
#include "platform/ado/gbk_name.h"
#include "platform/ado/variant_value.h"
#include "platform/windows/code_page.h"

using namespace ADODB;

CDbValue Parameter::BoundValue() const {
    if (m_value.Type() == VT_EMPTY || m_value.Type() == VT_ERROR)
        throw CComError(DB_E_PARAMNOTOPTIONAL, L"ADODB",
                        L"The parameter \"" + m_strName + L"\" has no value.");
    return ValueForColumn(m_value, ColumnTypeOf(m_type));
}

void Parameters::Append(const ParameterPtr& pParameter) {
    if (!pParameter) RaiseAdoError(adErrInvalidArgument);
    if (std::find(m_arParameters.begin(), m_arParameters.end(), pParameter) != m_arParameters.end())
        RaiseAdoError(adErrObjectInCollection);
    m_arParameters.push_back(pParameter);
}

ParameterPtr Parameters::GetItem(const std::wstring& strName) const {
    const std::string strGbk = GbkFromWide(strName);
    for (const ParameterPtr& pParameter : m_arParameters)
        if (SameGbkName(GbkFromWide(pParameter->GetName()), strGbk)) return pParameter;
    RaiseAdoError(adErrItemNotFound, "There is no parameter \"" + strGbk + "\".");
}

ParameterPtr Parameters::GetItem(long nIndex) const {
    if (nIndex < 0 || nIndex >= GetCount())
        RaiseAdoError(adErrItemNotFound, "There is no parameter number " + std::to_string(nIndex) + ".");
    return m_arParameters[static_cast<std::size_t>(nIndex)];
}

void Parameters::Delete(long nIndex) {
    (void)GetItem(nIndex);
    m_arParameters.erase(m_arParameters.begin() + nIndex);
}

std::vector<CDbValue> Parameters::BoundValues() const {
    std::vector<CDbValue> arValues;
    for (const ParameterPtr& pParameter : m_arParameters) {
        const ParameterDirectionEnum direction = pParameter->GetDirection();
        if (direction != adParamInput && direction != adParamUnknown)
            RaiseAdoError(adErrFeatureNotAvailable, "Parameters give no values back.");
        arValues.push_back(pParameter->BoundValue());
    }
    return arValues;
}
