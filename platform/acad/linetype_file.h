#pragma once
// Files of line types: a line `*NAME,description`, below it `A,length,length,...`; `;` begins a comment.

#include <optional>
#include <string>
#include <string_view>
#include <vector>

struct CLinetypeDefinition {
    std::wstring m_strName; ///< as the file writes it
    std::wstring m_strDescription;
    std::vector<double> m_arDashes; ///< positive a dash, negative a gap, 0 a dot
};

/// The definition of the line type of that name (in any case) in a file's bytes. UTF-8 or GBK is told from
/// the bytes. Nothing when the file lacks it, or when its lengths are no pattern: a field that is no finite
/// number, or nothing but dots. Shapes in square brackets are left out.
std::optional<CLinetypeDefinition> FindLinetype(std::string_view bytes, std::wstring_view name);
