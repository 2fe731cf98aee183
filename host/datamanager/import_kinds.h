#pragma once

#include <span>
#include <string_view>

#include "host/datamanager/schema.h"

/// A column of an import file.
struct CImportColumn {
    std::string_view m_strName;
    ColumnKind m_kind;
    bool m_bKey;        ///< part of the row's key
    bool m_bRequired;   ///< the file must have the column
    bool m_bMayBeEmpty; ///< an empty field is NULL
};

/// Which columns of a file go to a table, besides the key.
struct CImportPart {
    const CTable* m_pTable;
    std::span<const std::string_view> m_arColumns;
};

/// A kind of import file.
struct CImportKind {
    std::string_view m_strName;   ///< what its rows are called
    std::string_view m_strToldBy; ///< the column that tells the kind
    std::span<const CImportColumn> m_arColumns;
    std::span<const CImportPart> m_arParts;

    /// Place of a column by name, without regard to case; -1 where the kind has none such.
    [[nodiscard]] int FindColumn(std::string_view strName) const;
};

/// Readings, samples and layers.
std::span<const CImportKind> ImportKinds();
