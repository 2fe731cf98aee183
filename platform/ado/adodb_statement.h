#pragma once

#include <string>
#include <vector>

#include "platform/ado/provider.h"

namespace ADODB {

/// What a source or command text comes to on a connection.
struct CStatement {
    std::string m_strSql; ///< GBK
    std::vector<CDbValue> m_arParameters;
    bool m_bGivesRows = false;
};

/// Makes the statement of a source or command text, wide. Its kind is the CommandTypeEnum in nOptions: a text
/// is taken as it is, a table's name becomes a query of all its rows, a procedure's name the engine's call;
/// where the kind is not known a lone name is a table. Raises DB_E_PARAMNOTOPTIONAL for a parameter place
/// without a value, adErrInvalidParamInfo for a value without a place.
CStatement MakeStatement(const CDbConnection& database, const std::wstring& strText, long nOptions,
                         std::vector<CDbValue> arParameters);

} // namespace ADODB
