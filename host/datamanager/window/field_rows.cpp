#include "host/datamanager/window/field_rows.h"

#include "host/window_text.h"

std::vector<CTextColumn> FieldColumns(std::span<const std::string_view> arNames,
                                      std::span<const char16_t* const> arMeanings, std::size_t nFirstNumber) {
    std::vector<CTextColumn> arColumns;
    for (std::size_t i = 0; i < arNames.size(); ++i)
        arColumns.push_back({FromGbk(arNames[i]), QString::fromUtf16(arMeanings[i]), i >= nFirstNumber});
    return arColumns;
}

std::vector<CTextRow> FieldRows(std::span<const CRowTexts> arRows) {
    std::vector<CTextRow> arShown;
    for (const CRowTexts& fields : arRows) {
        CTextRow& row = arShown.emplace_back();
        for (const std::optional<CFieldText>& field : fields)
            row.m_arTexts.append(field ? FromGbk(field->m_strText) : QString());
    }
    return arShown;
}
