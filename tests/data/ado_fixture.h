#pragma once

#include "data/ado_recordset.h"
#include "tests/platform/ado/database_fixture.h"

/// On each engine in turn: table t (id, name, depth) of three rows in a database of the test's own, and
/// wrapper objects that reach it.
class CAdoTest : public CEngineTest {
protected:
    CAdoTest() {
        m_pDatabase->Execute("create table t(id integer primary key, name varchar(20), depth real)");
        m_pDatabase->Execute("insert into t values(1,'甲',1.5),(2,'乙',NULL),(3,'丙',3.5)");
        m_adoDatabase.Open(m_database.ConnectionText());
    }

    /// A value of the current row, as it is read as text; "?" where it cannot be.
    static std::string Text(CADORecordset& rows, const CADOField& field) {
        CString strText = "?";
        rows.GetFieldText(field, &strText);
        return strText.GetString();
    }
    /// The names of all rows shown, in their order.
    static std::string Names(CADORecordset& rows) {
        std::string strNames;
        for (rows.MoveFirst(); !rows.IsEof(); rows.MoveNext())
            strNames += Text(rows, "name");
        return strNames;
    }
    /// The rows of the table as they are stored.
    CRows Table() { return Rows(*m_pDatabase, "select * from t order by id"); }

    CADODatabase m_adoDatabase;
    CADORecordset m_rows{m_adoDatabase};
};
