#include "platform/ado/com_error.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <utility>

#include "platform/windows/code_page.h"

namespace {

using namespace ADODB;

struct CMeaning {
    HRESULT m_nCode;
    const char* m_pszText;
};

constexpr std::array g_arMeanings = {
    CMeaning{E_FAIL, "Unspecified error"},
    CMeaning{DB_E_BADBOOKMARK, "The bookmark is not one of this recordset"},
    CMeaning{DB_E_PARAMNOTOPTIONAL, "A parameter has no value"},
    CMeaning{DB_E_ERRORSINCOMMAND, "The statement has errors"},
    CMeaning{DB_E_ERRORSOCCURRED, "The operation could not be completed"},
    CMeaning{DB_E_DELETEDROW, "The row was deleted"},
    CMeaning{DB_E_INTEGRITYVIOLATION, "A rule of the table forbids the value"},
    CMeaning{DB_E_ABORTLIMITREACHED, "The time limit was reached"},
    CMeaning{DB_E_NOTABLE, "The table does not exist"},
    CMeaning{DB_E_DATAOVERFLOW, "The value is too large for its type"},
    CMeaning{XACT_E_NOTRANSACTION, "No transaction is active"},
    CMeaning{XACT_E_XTIONEXISTS, "A transaction is active already"},
    CMeaning{AdoResult(adErrFileExists), "The file exists already"},
    CMeaning{AdoResult(adErrInvalidArgument),
             "An argument is of the wrong type, out of range or in conflict"},
    CMeaning{AdoResult(adErrReadFile), "The file could not be read"},
    CMeaning{AdoResult(adErrWriteFile), "The file could not be written"},
    CMeaning{AdoResult(adErrNoCurrentRecord), "There is no current record"},
    CMeaning{AdoResult(adErrIllegalOperation), "The operation is not allowed here"},
    CMeaning{AdoResult(adErrInTransaction), "A connection cannot be closed within a transaction"},
    CMeaning{AdoResult(adErrFeatureNotAvailable), "The object or its provider cannot do this"},
    CMeaning{AdoResult(adErrItemNotFound), "There is no item of that name or number"},
    CMeaning{AdoResult(adErrObjectInCollection), "The object is in the collection already"},
    CMeaning{AdoResult(adErrDataConversion), "The value is of the wrong type"},
    CMeaning{AdoResult(adErrObjectClosed), "The object is closed"},
    CMeaning{AdoResult(adErrObjectOpen), "The object is open"},
    CMeaning{AdoResult(adErrInvalidParamInfo), "The parameters are not those of the statement"},
    CMeaning{AdoResult(adErrInvalidConnection), "There is no open connection"},
};

HRESULT CodeOf(DbFailure failure) {
    switch (failure) {
    case DbFailure::Statement:
        return DB_E_ERRORSINCOMMAND;
    case DbFailure::NoTable:
        return DB_E_NOTABLE;
    case DbFailure::Constraint:
        return DB_E_INTEGRITYVIOLATION;
    case DbFailure::ReadOnly:
        return AdoResult(adErrFeatureNotAvailable);
    case DbFailure::RowGone:
        return DB_E_DELETEDROW;
    case DbFailure::Locked:
        return DB_E_ABORTLIMITREACHED;
    case DbFailure::NotInCodePage:
        return DB_E_ERRORSOCCURRED;
    case DbFailure::General:
        break;
    }
    return E_FAIL;
}

} // namespace

CComError::CComError(HRESULT nCode, std::wstring strSource, std::wstring strDescription)
    : m_nCode(nCode)
    , m_strSource(std::move(strSource))
    , m_strDescription(std::move(strDescription))
    , m_strWhat(GbkFromWide(m_strDescription)) {}

std::string CComError::ErrorMessage() const {
    const auto* pFound = std::find_if(g_arMeanings.begin(), g_arMeanings.end(),
                                      [this](const CMeaning& meaning) { return meaning.m_nCode == m_nCode; });
    if (pFound != g_arMeanings.end()) return pFound->m_pszText;
    std::array<char, 32> szText{};
    std::snprintf(szText.data(), szText.size(), "Unknown error 0x%08X", static_cast<unsigned>(m_nCode));
    return szText.data();
}

void ADODB::RaiseAdoError(ErrorValueEnum error, std::string_view strDescription) {
    const HRESULT nCode = AdoResult(error);
    const std::string strMeaning = CComError(nCode, {}, {}).ErrorMessage();
    throw CComError(nCode, L"ADODB", WideFromGbk(strDescription.empty() ? strMeaning : strDescription));
}

void ADODB::RaiseDbError(const CDbError& error) {
    throw CComError(CodeOf(error.Failure()), WideFromGbk(error.Source()), WideFromGbk(error.what()));
}
