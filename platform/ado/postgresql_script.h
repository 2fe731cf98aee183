#pragma once

#include <string_view>

/// The text of postgresql.sql.
std::string_view PostgresqlScript();
