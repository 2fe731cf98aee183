#include "platform/acad/selection_filter.h"

#include "platform/acad/db_database.h"
#include "platform/acad/result_buffer.h"
#include "platform/acad/wide_names.h"
#include "platform/windows/code_page.h"

#include <algorithm>

namespace {

constexpr short g_nDxfNameGroup = 0, g_nLinetypeGroup = 6, g_nLayerGroup = 8, g_nColorGroup = 62,
                g_nApplicationGroup = 1001;

/// Whether one alternative fits a name, both in upper case. What follows the last '*' met is tried at each
/// later place of the name.
bool FitsAlternative(std::wstring_view pattern, std::wstring_view name) {
    std::size_t at = 0, in = 0, afterStar = std::wstring_view::npos, tried = 0;
    while (in < name.size()) {
        if (at < pattern.size() && pattern[at] == L'*') {
            afterStar = ++at;
            tried = in;
        } else if (at < pattern.size() && (pattern[at] == L'?' || pattern[at] == name[in])) {
            ++at;
            ++in;
        } else if (afterStar != std::wstring_view::npos) {
            at = afterStar;
            in = ++tried;
        } else {
            return false;
        }
    }
    return std::all_of(pattern.begin() + static_cast<std::ptrdiff_t>(at), pattern.end(),
                       [](wchar_t c) { return c == L'*'; });
}

bool Fits(const ACHAR* szPatterns, const std::wstring& strName) {
    const std::wstring patterns = UpperName(szPatterns ? szPatterns : L""), name = UpperName(strName);
    std::size_t begin = 0;
    while (begin <= patterns.size()) {
        const std::size_t end = std::min(patterns.find(L',', begin), patterns.size());
        if (FitsAlternative(std::wstring_view(patterns).substr(begin, end - begin), name)) return true;
        begin = end + 1;
    }
    return false;
}

bool HasDataOf(const AcDbEntity& entity, const ACHAR* szPatterns) {
    const std::vector<CXDataOfApp>& apps = entity.XData().Apps();
    return std::any_of(apps.begin(), apps.end(), [szPatterns](const CXDataOfApp& app) {
        return Fits(szPatterns, WideFromGbk(SymbolName(app.m_idApp)));
    });
}

bool Holds(const AcDbEntity& entity, const resbuf& item) {
    switch (item.restype) {
    case g_nDxfNameGroup:
        return Fits(item.resval.rstring, entity.isA()->dxfName());
    case g_nLinetypeGroup:
        return Fits(item.resval.rstring, WideFromGbk(entity.LinetypeName()));
    case g_nLayerGroup:
        return Fits(item.resval.rstring, WideFromGbk(entity.LayerName()));
    case g_nColorGroup:
        return entity.colorIndex() == item.resval.rint;
    default:
        return HasDataOf(entity, item.resval.rstring);
    }
}

} // namespace

bool IsSelectionFilter(const resbuf* pFilter) {
    constexpr short groups[] = {g_nDxfNameGroup, g_nLinetypeGroup, g_nLayerGroup, g_nColorGroup,
                                g_nApplicationGroup};
    for (; pFilter; pFilter = pFilter->rbnext)
        if (std::count(std::begin(groups), std::end(groups), pFilter->restype) == 0) return false;
    return true;
}

bool PassesFilter(const AcDbEntity& entity, const resbuf* pFilter) {
    for (; pFilter; pFilter = pFilter->rbnext)
        if (!Holds(entity, *pFilter)) return false;
    return true;
}
