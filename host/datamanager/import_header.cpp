#include "host/datamanager/import_header.h"

#include <algorithm>
#include <string>

namespace {

int KindsWith(std::string_view strColumn) {
    return static_cast<int>(std::ranges::count_if(
        ImportKinds(), [&](const CImportKind& kind) { return kind.FindColumn(strColumn) >= 0; }));
}

const CImportKind* KindWhere(const CCsvRecord& record,
                             bool (*pfnTells)(const CImportKind&, std::string_view)) {
    for (const CImportKind& kind : ImportKinds())
        for (const std::string& strField : record.m_arFields)
            if (pfnTells(kind, strField)) return &kind;
    return nullptr;
}

/// The kind by its telling column; where none is there by any column that no other kind has, so that the
/// refusal can name what is missing.
const CImportKind* ToldKind(const CCsvRecord& record) {
    const CImportKind* pKind = KindWhere(record, [](const CImportKind& kind, std::string_view strField) {
        const int nColumn = kind.FindColumn(strField);
        return nColumn >= 0 &&
               kind.m_arColumns[static_cast<std::size_t>(nColumn)].m_strName == kind.m_strToldBy;
    });
    if (pKind) return pKind;
    return KindWhere(record, [](const CImportKind& kind, std::string_view strField) {
        return kind.FindColumn(strField) >= 0 && KindsWith(strField) == 1;
    });
}

std::string TellingColumns() {
    std::string strNames;
    for (const CImportKind& kind : ImportKinds())
        strNames.append(strNames.empty() ? "" : ", ").append(kind.m_strToldBy);
    return strNames;
}

} // namespace

bool ReadImportHeader(std::string_view strFile, const CCsvRecord& record, CImportReport* pReport,
                      CImportHeader* pHeader) {
    const std::size_t nBefore = pReport->Refusals();
    const auto refuse = [&](std::string_view strColumn, std::string_view strReason) {
        pReport->Refuse(strFile, record.m_nLine, strColumn, strReason);
    };
    if (!record.m_strFault.empty()) {
        refuse(std::to_string(record.m_arFields.size()), record.m_strFault);
        return false;
    }
    pHeader->m_pKind = ToldKind(record);
    if (!pHeader->m_pKind) {
        refuse("header", "none of " + TellingColumns() + " is there, so the kind of the file is unknown");
        return false;
    }
    const CImportKind& kind = *pHeader->m_pKind;
    pHeader->m_arPlaces.clear();
    for (const std::string& strField : record.m_arFields) {
        const int nPlace = kind.FindColumn(strField);
        if (nPlace < 0)
            refuse(strField, "unknown column in a file of " + std::string(kind.m_strName));
        else if (std::ranges::find(pHeader->m_arPlaces, static_cast<std::size_t>(nPlace)) !=
                 pHeader->m_arPlaces.end())
            refuse(strField, "the column stands twice");
        pHeader->m_arPlaces.push_back(static_cast<std::size_t>(nPlace));
    }
    for (std::size_t i = 0; i < kind.m_arColumns.size(); ++i)
        if (kind.m_arColumns[i].m_bRequired &&
            std::ranges::find(pHeader->m_arPlaces, i) == pHeader->m_arPlaces.end())
            refuse(kind.m_arColumns[i].m_strName,
                   "required column missing in a file of " + std::string(kind.m_strName));
    return pReport->Refusals() == nBefore;
}
