#include "host/files/dxf_output.h"

#include "platform/acad/wide_names.h"

#include <algorithm>

void CDxfOutput::Record(std::string_view type, AcDbHandle handle, AcDbHandle owner) {
    Word(0, type);
    Handle(type == "DIMSTYLE" ? 105 : 5, handle); // there group 5 is the name of a block
    Handle(330, owner);
}

void CDxfOutput::BeginSection(std::string_view name) {
    Word(0, "SECTION");
    Word(2, name);
}

int CDxfOutput::ClassNumber(const CDxfClass& entry) {
    constexpr int nFirst = 500 + g_nDxfUsualClasses;
    const auto found = std::find_if(m_arClasses.begin(), m_arClasses.end(), [&entry](const CDxfClass& one) {
        return one.m_strClassName == entry.m_strClassName;
    });
    const auto nIndex = found - m_arClasses.begin();
    if (found == m_arClasses.end()) m_arClasses.push_back(entry);
    return nFirst + static_cast<int>(nIndex);
}

std::wstring DxfName(AcDbObjectId idRecord) {
    const CDbOpen<AcDbSymbolTableRecord> record(idRecord);
    return record ? record->Name() : std::wstring();
}

bool IsDxfPaperSpace(const std::wstring& strName) {
    return UpperName(strName).starts_with(UpperName(ACDB_PAPER_SPACE));
}
