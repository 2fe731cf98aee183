#include "data/statement_batch.h"

#include <utility>

#include "data/null_syntax.h"
#include "data/suite_connections.h"

namespace {

bool StandsBefore(const CStringArray& saStatements, int nPlace) {
    for (int i = 0; i < nPlace; ++i)
        if (saStatements[i].CompareNoCase(saStatements[nPlace]) == 0) return true;
    return false;
}

} // namespace

int ExecuteBatch(CStringArray saStatements, SuiteDb db, CString* pFailure) {
    if (!EnsureConnection(db)) return 1;
    for (int i = saStatements.GetUpperBound(); i >= 1; --i)
        if (StandsBefore(saStatements, i)) saStatements.RemoveAt(i);
    CADODatabase& database = SuiteConnection(db == SuiteDb_Project ? SuiteDb_Project : SuiteDb_Common);
    for (int i = 0; i < saStatements.GetSize(); ++i) {
        FixNullSyntax(&saStatements[i]);
        if (database.Execute(saStatements[i])) continue;
        if (pFailure) pFailure->Format("%s语句错误", saStatements[i].GetString());
        saStatements.RemoveAt(0, i + 1);
        ExecuteBatch(std::move(saStatements), SuiteDb_Project);
        return 0;
    }
    return 1;
}
