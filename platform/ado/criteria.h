#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "platform/ado/cursor.h"

/// What a criterion compares a column with.
struct CCriterionValue {
    CDbValue m_value;          ///< NULL, number or text; a date as its text
    bool m_bDate = false;      ///< written as a date, #2024-03-09#
    bool m_bTruth = false;     ///< TRUE or FALSE
    std::wstring m_strPattern; ///< of LIKE, without its asterisks, as FoldedText
    bool m_bFromStart = true;  ///< LIKE: nothing may stand before the pattern
    bool m_bToEnd = true;      ///< LIKE: nothing may stand behind it
};

enum class CriterionOperator { Equal, NotEqual, Less, Greater, LessOrEqual, GreaterOrEqual, Like };

struct CCriterion {
    std::string m_strColumn;
    CriterionOperator m_operator = CriterionOperator::Equal;
    CCriterionValue m_value;
};

/// A text that tells rows apart, e.g. "ZKBH = 'ZK1' AND (SD > 2.5 OR MC LIKE '粘*')". Conditions are a column
/// (in brackets where its name needs them), one of = <> < > <= >= LIKE, and a value: a number, a text in
/// single quotes, a date between number signs, TRUE, FALSE, or NULL with = and <>. LIKE takes an asterisk or
/// percent sign at the pattern's end, or at both ends. Texts compare without case; a NULL in a row meets no
/// condition but one with NULL.
class CCriteria {
public:
    /// Meets every row.
    CCriteria() = default;
    /// Reads the text, GBK; one that is not of this form raises adErrInvalidArgument.
    explicit CCriteria(std::string_view strText);

    [[nodiscard]] bool IsOneCondition() const { return m_arGroups.size() == 1 && m_arGroups[0].size() == 1; }
    /// Raises adErrItemNotFound for a column that the rows lack.
    void RequireColumns(const CDbCursor& rows) const;
    [[nodiscard]] bool Meets(const CDbCursor& rows, std::size_t nRow) const;

private:
    std::vector<std::vector<CCriterion>> m_arGroups; ///< all conditions of any one group must hold
};
