#include "platform/acad/field_table.h"

#include "platform/acad/rx_class.h"

#include <algorithm>
#include <numeric>

ACRX_DEFINE_DESC(CFieldTable, AcRxObject)

const CFieldTable* CFieldTable::Of(const AcDbObject& object) {
    return static_cast<const CFieldTable*>(object.queryX(desc()));
}

int CFieldTable::Find(const std::string& strName) const {
    for (int index = 0; index < Count(); ++index)
        if (strName == Info(index).m_pName) return index;
    return -1;
}

std::vector<int> CFieldTable::DeclaredOrder() const {
    std::vector<int> rows(static_cast<std::size_t>(Count()));
    std::iota(rows.begin(), rows.end(), 0);
    std::stable_sort(rows.begin(), rows.end(),
                     [this](int a, int b) { return Info(a).m_nDeclared < Info(b).m_nDeclared; });
    return rows;
}
