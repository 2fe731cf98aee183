#include "platform/ado/odbc_engine.h"

#include "platform/ado/postgresql_engine.h"
#include "platform/ado/text.h"

const COdbcEngine& OdbcEngine(std::string_view strDbms) {
    static const COdbcEngine s_unknown;
    return EqualNoCase(strDbms, "PostgreSQL") ? PostgresqlEngine() : s_unknown;
}
