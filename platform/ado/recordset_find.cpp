#include <algorithm>

#include "platform/ado/adodb_recordset.h"
#include "platform/ado/criteria.h"
#include "platform/ado/text.h"
#include "platform/ado/variant_value.h"
#include "platform/windows/code_page.h"

using namespace ADODB;

namespace {

/// The parts of a text between commas outside brackets.
std::vector<std::string> CommaParts(const std::wstring& strText) {
    std::vector<std::string> arParts;
    std::wstring strPart;
    bool bBrackets = false;
    for (const wchar_t character : strText + L',') {
        if (character == L'[') bBrackets = true;
        if (character == L']') bBrackets = false;
        if (character == L',' && !bBrackets) {
            arParts.push_back(GbkOrRaise(strPart));
            strPart.clear();
        } else {
            strPart += character;
        }
    }
    if (!strPart.empty()) RaiseAdoError(adErrInvalidArgument, "A bracket is missing in the sort order.");
    return arParts;
}

/// Takes the word off the end of a text, without regard to case, with the blanks before it.
bool TakeLastWord(std::string_view* pText, std::string_view strWord) {
    if (pText->size() <= strWord.size()) return false;
    const std::size_t nPlace = pText->size() - strWord.size();
    if (!IsBlank((*pText)[nPlace - 1]) && pText->front() != '[') return false;
    if (!EqualNoCase(pText->substr(nPlace), strWord)) return false;
    *pText = TrimBlanks(pText->substr(0, nPlace));
    return true;
}

} // namespace

void Recordset::Find(const std::wstring& strCriteria, long nSkip, SearchDirectionEnum direction,
                     const CVariant& start) {
    LeaveRow();
    if (direction == adSearchBackward) RequireBackward();
    const CCriteria criteria(GbkOrRaise(strCriteria));
    if (!criteria.IsOneCondition())
        RaiseAdoError(adErrInvalidArgument, "A search takes one condition on one column.");
    criteria.RequireColumns(m_pRows->Cursor());
    const bool bStart = start.Type() != VT_EMPTY && start.Type() != VT_ERROR;
    if (!bStart && !m_view.Row()) RaiseAdoError(adErrNoCurrentRecord);
    const long nStep = direction == adSearchBackward ? -1 : 1;
    const long nFar = m_view.Count() + 1;
    long nPlace = (bStart ? PlaceOfStart(start) : m_view.Place()) + nStep * std::clamp(nSkip, -nFar, nFar);
    for (; nPlace >= 0 && nPlace < m_view.Count(); nPlace += nStep) {
        ArriveAt(nPlace);
        const std::size_t nRow = m_view.RowAt(nPlace);
        if (m_pRows->State(nRow) == RowState::Present && criteria.Meets(m_pRows->Cursor(), nRow)) return;
    }
    m_view.MoveTo(nStep > 0 ? m_view.Count() : -1);
}

void Recordset::PutFilter(const std::wstring& strCriteria) {
    LeaveRow();
    SelectRows(strCriteria, m_strSort);
}

void Recordset::PutFilter(FilterGroupEnum group) {
    if (group != adFilterNone) RaiseAdoError(adErrFeatureNotAvailable);
    PutFilter(std::wstring());
}

void Recordset::PutSort(const std::wstring& strSort) {
    LeaveRow();
    if (m_cursorLocation != adUseClient)
        RaiseAdoError(adErrFeatureNotAvailable, "Only rows whose cursor is the client's can be sorted.");
    SelectRows(m_strFilter, strSort);
}

/// Shows the rows of a filter in an order. Texts that are not understood leave both as they were.
void Recordset::SelectRows(const std::wstring& strFilter, const std::wstring& strSort) {
    const std::string strText = GbkOrRaise(strFilter);
    const CCriteria criteria = TrimBlanks(strText).empty() ? CCriteria() : CCriteria(strText);
    criteria.RequireColumns(m_pRows->Cursor());
    m_view.Select(criteria, SortKeys(strSort));
    m_strFilter = strFilter;
    m_strSort = strSort;
    if (m_view.Count() > 0) ArriveAt(0);
}

std::vector<CSortKey> Recordset::SortKeys(const std::wstring& strSort) {
    std::vector<CSortKey> arKeys;
    const std::vector<std::string> arParts = CommaParts(strSort);
    for (const std::string& strPart : arParts) {
        std::string_view strName = TrimBlanks(strPart);
        if (strName.empty() && arParts.size() == 1) break;
        const bool bDescending = TakeLastWord(&strName, "desc");
        if (!bDescending) TakeLastWord(&strName, "asc");
        if (strName.size() >= 2 && strName.front() == '[' && strName.back() == ']')
            strName = strName.substr(1, strName.size() - 2);
        const std::optional<std::size_t> nColumn = m_pRows->Cursor().FindColumn(strName);
        if (!nColumn)
            RaiseAdoError(adErrItemNotFound, "There is no column \"" + std::string(strName) + "\".");
        arKeys.push_back({*nColumn, bDescending});
    }
    return arKeys;
}
