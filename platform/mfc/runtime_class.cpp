#include "platform/mfc/runtime_class.h"

#include <algorithm>
#include <string_view>
#include <vector>

namespace {

std::vector<const CRuntimeClass*>& Records() {
    // Never destroyed: records of other files go later than what this one holds.
    static auto* const pRecords = new std::vector<const CRuntimeClass*>;
    return *pRecords;
}

} // namespace

CRuntimeClass::CRuntimeClass(const char* name, const CRuntimeClass* pBaseClass, CCreate pCreate)
    : m_lpszClassName(name)
    , m_pBaseClass(pBaseClass)
    , m_pfnCreateObject(pCreate) {
    Records().push_back(this);
}

CRuntimeClass::~CRuntimeClass() {
    std::erase(Records(), this);
}

const CRuntimeClass* CRuntimeClass::FromName(const char* name) {
    const std::string_view wanted(name);
    const auto found = std::find_if(Records().begin(), Records().end(), [&](const CRuntimeClass* pRecord) {
        return pRecord->m_lpszClassName == wanted;
    });
    return found == Records().end() ? nullptr : *found;
}

CWnd* CRuntimeClass::CreateObject(const char* name) {
    const CRuntimeClass* const pRecord = FromName(name);
    return pRecord ? pRecord->CreateObject() : nullptr;
}
