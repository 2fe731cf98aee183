#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <vector>

#include "platform/ado/adodb_recordset.h"
#include "platform/ado/variant_value.h"
#include "platform/windows/code_page.h"
#include "tests/platform/ado/database_fixture.h"

// Result codes that the tests expect, as callers see them.
inline constexpr std::uint32_t g_nNoCurrentRecord = 0x800A0BCD;
inline constexpr std::uint32_t g_nInvalidArgument = 0x800A0BB9;
inline constexpr std::uint32_t g_nIllegalOperation = 0x800A0C93;
inline constexpr std::uint32_t g_nNotAvailable = 0x800A0CB3;
inline constexpr std::uint32_t g_nItemNotFound = 0x800A0CC1;
inline constexpr std::uint32_t g_nWrongType = 0x800A0D5D;
inline constexpr std::uint32_t g_nObjectClosed = 0x800A0E78;
inline constexpr std::uint32_t g_nObjectOpen = 0x800A0E79;
inline constexpr std::uint32_t g_nInvalidConnection = 0x800A0E7D;
inline constexpr std::uint32_t g_nStatementError = 0x80040E14;
inline constexpr std::uint32_t g_nDeletedRow = 0x80040E23;
inline constexpr std::uint32_t g_nNoTable = 0x80040E37;

/// The code of the error that a call raises; 0 when it raises none.
template <class Call>
std::uint32_t CodeOf(const Call& call) {
    try {
        call();
    } catch (const CComError& error) {
        return static_cast<std::uint32_t>(error.Error());
    }
    return 0;
}

/// A database of the test's own with table t (id, name, depth) of three rows, and a connection to it.
class CRecordsetTest : public CDatabaseTest {
protected:
    CRecordsetTest() {
        m_pDatabase->Execute("create table t(id integer primary key, name varchar(20), depth real)");
        m_pDatabase->Execute("insert into t values(1,'甲',1.5),(2,'乙',NULL),(3,'丙',3.5)");
        m_pConnection->Open(WideFromGbk(ConnectionText()));
    }

    [[nodiscard]] ADODB::RecordsetPtr Opened(const wchar_t* pszSource,
                                             ADODB::CursorLocationEnum location = ADODB::adUseClient,
                                             ADODB::CursorTypeEnum cursorType = ADODB::adOpenStatic,
                                             ADODB::LockTypeEnum lockType = ADODB::adLockOptimistic) const {
        auto pRecordset = std::make_shared<ADODB::Recordset>();
        pRecordset->PutCursorLocation(location);
        pRecordset->Open(pszSource, m_pConnection, cursorType, lockType);
        return pRecordset;
    }
    [[nodiscard]] ADODB::RecordsetPtr OpenedKeyset(const wchar_t* pszSource) const {
        return Opened(pszSource, ADODB::adUseServer, ADODB::adOpenKeyset);
    }

    static std::wstring Text(ADODB::Recordset& recordset, const wchar_t* pszField) {
        return VariantText(recordset.GetFields().GetItem(pszField).GetValue());
    }
    static void Put(ADODB::Recordset& recordset, const wchar_t* pszField, const CVariant& value) {
        recordset.GetFields().GetItem(pszField).PutValue(value);
    }
    /// The values of a field in all rows shown, joined with commas, in their order.
    static std::wstring Column(ADODB::Recordset& recordset, const wchar_t* pszField) {
        std::wstring strValues;
        if (recordset.IsBOF() && recordset.IsEOF()) return strValues;
        for (recordset.MoveFirst(); !recordset.IsEOF(); recordset.MoveNext())
            strValues += (strValues.empty() ? L"" : L",") + Text(recordset, pszField);
        return strValues;
    }

    ADODB::ConnectionPtr m_pConnection = ADODB::Connection::CreateInstance();
};
