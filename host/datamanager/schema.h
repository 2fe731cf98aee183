#pragma once

#include <span>
#include <string_view>

/// What a column holds.
enum class ColumnKind { Int32, Int16, Int8, UInt8, Float, Text };

struct CColumn {
    std::string_view m_strName;
    ColumnKind m_kind;
};

/// A table of the suite. The order of its columns is a contract: programs of the suite read by position.
struct CTable {
    std::string_view m_strName;
    std::span<const CColumn> m_arColumns;

    /// The column of that name; it must be one of the table.
    [[nodiscard]] const CColumn& Column(std::string_view strName) const;
    [[nodiscard]] bool HasColumn(std::string_view strName) const;
};

extern const CTable g_tableSanZhou;     ///< z_c_SanZhou: method and stored strength values of a sample
extern const CTable g_tableSanZhouCSXM; ///< z_c_SanZhouCSXM: readings
extern const CTable g_tableQuYang;      ///< z_c_QuYang: register of samples
extern const CTable g_tableTuCeng;      ///< z_g_TuCeng: soil layers
extern const CTable g_tableGongCheng;   ///< x_GongCheng: register of projects

/// The tables of each kind of database.
std::span<const CTable* const> ProjectTables();
std::span<const CTable* const> CommonTables();
std::span<const CTable* const> ConfigTables();
