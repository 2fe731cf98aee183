#include "platform/acad/ap_document.h"

#include "platform/acad/ap_document_manager.h"

#include <algorithm>

ACRX_DEFINE_DESC(AcApDocument, AcRxObject)

AcApDocument::AcApDocument(std::unique_ptr<AcDbDatabase> pDatabase, std::wstring strTitle)
    : m_pDatabase(std::move(pDatabase))
    , m_strTitle(std::move(strTitle)) {}

AcApDocument::~AcApDocument() {
    acDocManagerPtr()->Forget(*this);
}

bool AcApDocument::isNamedDrawing() const {
    m_pDatabase->getFilename(m_strFileName);
    return !m_strFileName.empty();
}

const ACHAR* AcApDocument::fileName() const {
    return isNamedDrawing() ? m_strFileName.c_str() : m_strTitle.c_str();
}

const ACHAR* AcApDocument::docTitle() const {
    if (!isNamedDrawing()) return m_strTitle.c_str();
    m_strFileTitle = m_strFileName.substr(m_strFileName.find_last_of(L"/\\") + 1);
    return m_strFileTitle.c_str();
}

Acad::ErrorStatus AcApDocument::Lock(AcAp::DocLockMode mode) {
    constexpr AcAp::DocLockMode modes[] = {AcAp::kAutoWrite, AcAp::kWrite, AcAp::kProtectedAutoWrite,
                                           AcAp::kRead, AcAp::kXWrite};
    if (std::count(std::begin(modes), std::end(modes), mode) == 0) return Acad::eInvalidInput;
    if (lockMode() == AcAp::kXWrite || (mode == AcAp::kXWrite && !m_arLocks.empty()))
        return Acad::eLockViolation;
    m_arLocks.push_back(mode);
    return Acad::eOk;
}

Acad::ErrorStatus AcApDocument::Unlock() {
    if (m_arLocks.empty()) return Acad::eLockViolation;
    m_arLocks.pop_back();
    return Acad::eOk;
}
