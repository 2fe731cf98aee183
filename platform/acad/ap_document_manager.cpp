#include "platform/acad/ap_document_manager.h"

#include "platform/acad/editor.h"
#include "platform/mfc/resources.h"

#include <algorithm>

ACRX_DEFINE_DESC(AcApDocManager, AcRxObject)

AcApDocManager* acDocManagerPtr() {
    // Never destroyed: static objects of modules may still ask while the process ends.
    static auto* const pManager = new AcApDocManager;
    return pManager;
}

AcApDocument* AcApDocManager::curDocument() const {
    return m_pHost ? m_pHost->Current() : nullptr;
}

std::vector<AcApDocument*> AcApDocManager::Documents() const {
    return m_pHost ? m_pHost->Documents() : std::vector<AcApDocument*>();
}

Acad::ErrorStatus AcApDocManager::Check(const AcApDocument* pDocument) const {
    if (!pDocument) return Acad::eNoDocument;
    const std::vector<AcApDocument*> open = Documents();
    return std::count(open.begin(), open.end(), pDocument) ? Acad::eOk : Acad::eNotFromThisDocument;
}

Acad::ErrorStatus AcApDocManager::CheckApplicationContext() const {
    if (!isApplicationContext()) return Acad::eInvalidContext;
    return m_pHost ? Acad::eOk : Acad::eNotApplicable;
}

Acad::ErrorStatus AcApDocManager::lockDocument(AcApDocument* pDocument, AcAp::DocLockMode mode) {
    const Acad::ErrorStatus status = Check(pDocument);
    return status == Acad::eOk ? pDocument->Lock(mode) : status;
}

Acad::ErrorStatus AcApDocManager::unlockDocument(AcApDocument* pDocument) {
    const Acad::ErrorStatus status = Check(pDocument);
    return status == Acad::eOk ? pDocument->Unlock() : status;
}

Acad::ErrorStatus AcApDocManager::appContextNewDocument() {
    const Acad::ErrorStatus status = CheckApplicationContext();
    return status == Acad::eOk ? m_pHost->NewDocument() : status;
}

Acad::ErrorStatus AcApDocManager::appContextOpenDocument(const ACHAR* path) {
    if (const Acad::ErrorStatus status = CheckApplicationContext(); status != Acad::eOk) return status;
    return path && *path ? m_pHost->OpenDocument(path) : Acad::eInvalidInput;
}

Acad::ErrorStatus AcApDocManager::appContextCloseDocument(AcApDocument* pDocument) {
    if (const Acad::ErrorStatus status = CheckApplicationContext(); status != Acad::eOk) return status;
    if (const Acad::ErrorStatus status = Check(pDocument); status != Acad::eOk) return status;
    if (pDocument->lockMode() != AcAp::kNotLocked) return Acad::eLockViolation;
    return m_pHost->CloseDocument(*pDocument);
}

Acad::ErrorStatus AcApDocManager::activateDocument(AcApDocument* pDocument) {
    if (const Acad::ErrorStatus status = CheckApplicationContext(); status != Acad::eOk) return status;
    if (const Acad::ErrorStatus status = Check(pDocument); status != Acad::eOk) return status;
    m_pHost->Activate(*pDocument);
    return Acad::eOk;
}

void AcApDocManager::executeInApplicationContext(void (*pFunction)(void*), void* pData) {
    if (!pFunction) return;
    if (isApplicationContext()) {
        pFunction(pData);
    } else {
        m_arWork.push_back({pFunction, pData});
    }
}

Acad::ErrorStatus AcApDocManager::sendStringToExecute(AcApDocument* pDocument, const ACHAR* text,
                                                      bool bActivate, bool, bool bEchoString) {
    if (const Acad::ErrorStatus status = Check(pDocument); status != Acad::eOk) return status;
    if (!text) return Acad::eInvalidInput;
    m_arSent.push_back({pDocument, text, bActivate, bEchoString});
    return Acad::eOk;
}

void AcApDocManager::pushResourceHandle(HINSTANCE hResources) {
    m_arResources.push_back(AfxGetResourceHandle());
    AfxSetResourceHandle(hResources);
}

void AcApDocManager::popResourceHandle() {
    if (m_arResources.empty()) return;
    AfxSetResourceHandle(m_arResources.back());
    m_arResources.pop_back();
}

bool AcApDocManager::RunDeferredWork() {
    const bool bAny = !m_arWork.empty();
    while (!m_arWork.empty()) {
        const CWork work = m_arWork.front();
        m_arWork.pop_front();
        work.m_pFunction(work.m_pData);
    }
    return bAny;
}

bool AcApDocManager::TypeNextText() {
    if (m_arSent.empty()) return false;
    const CSentText sent = std::move(m_arSent.front());
    m_arSent.pop_front();
    if (sent.m_bActivate) m_pHost->Activate(*sent.m_pDocument);
    sent.m_pDocument->TypedText().Type(sent.m_strText, sent.m_bEcho);
    return true;
}

Acad::ErrorStatus AcApDocManager::OpenInPlace(const ACHAR* path) {
    if (!m_pHost || !IsSingleDocument()) return Acad::eNotApplicable;
    return path && *path ? m_pHost->OpenDocument(path) : Acad::eInvalidInput;
}

void AcApDocManager::RemoveCodeIn(const std::function<bool(const void*)>& isInside) {
    std::erase_if(m_arWork, [&isInside](const CWork& work) {
        return isInside(reinterpret_cast<const void*>(work.m_pFunction));
    });
}

void AcApDocManager::Forget(const AcApDocument& document) {
    std::erase_if(m_arSent, [&document](const CSentText& sent) { return sent.m_pDocument == &document; });
}

Acad::ErrorStatus acedSyncFileOpen(const ACHAR* path) {
    return acDocManagerPtr()->OpenInPlace(path);
}
