#include "host/console/drawings.h"

#include "host/console/texts.h"
#include "platform/acad/dynamic_linker.h"
#include "platform/acad/host_application.h"
#include "platform/windows/code_page.h"

#include <algorithm>
#include <filesystem>

CDrawings::~CDrawings() {
    acdbHostApplicationServices()->setWorkingDatabase(nullptr);
}

std::vector<AcApDocument*> CDrawings::Documents() const {
    std::vector<AcApDocument*> documents;
    for (const COpenDrawing& drawing : m_arDrawings)
        documents.push_back(drawing.m_pDocument.get());
    return documents;
}

std::vector<AcApDocument*> CDrawings::ChangedDocuments() const {
    std::vector<AcApDocument*> documents = Documents();
    std::erase_if(documents,
                  [](const AcApDocument* pDocument) { return !pDocument->database()->IsModified(); });
    return documents;
}

std::string CDrawings::FolderGbk() const {
    if (!m_pCurrent || !m_pCurrent->isNamedDrawing()) return {};
    const std::filesystem::path path(NameOf(*m_pCurrent));
    std::string gbk;
    return Utf8ToGbk(path.parent_path().string(), &gbk) ? gbk : std::string();
}

void CDrawings::Add(std::unique_ptr<AcDbDatabase> pDatabase, CFileNotes notes) {
    pDatabase->SetModified(false);
    const std::wstring strTitle = L"Drawing" + std::to_wstring(++m_nMade);
    auto pDocument = std::make_unique<AcApDocument>(std::move(pDatabase), strTitle);
    m_arDrawings.push_back({std::move(pDocument), std::move(notes), m_nMade, 0});
    MakeCurrent(*m_arDrawings.back().m_pDocument);
    acrxDynamicLinker()->SendToAll(AcRx::kLoadDwgMsg);
}

void CDrawings::MakeCurrent(AcApDocument& document) {
    for (COpenDrawing& drawing : m_arDrawings)
        if (drawing.m_pDocument.get() == &document) drawing.m_nActivated = ++m_nActivations;
    m_pCurrent = &document;
    acdbHostApplicationServices()->setWorkingDatabase(document.database());
}

void CDrawings::Close(AcApDocument& document) {
    acrxDynamicLinker()->SendToAll(AcRx::kUnloadDwgMsg);
    const bool bCurrent = &document == m_pCurrent;
    std::erase_if(m_arDrawings,
                  [&](const COpenDrawing& drawing) { return drawing.m_pDocument.get() == &document; });
    if (!bCurrent) return;
    m_pCurrent = nullptr; // the working drawing went with its document
    const auto latest = std::max_element(
        m_arDrawings.begin(), m_arDrawings.end(),
        [](const COpenDrawing& a, const COpenDrawing& b) { return a.m_nActivated < b.m_nActivated; });
    if (latest != m_arDrawings.end()) MakeCurrent(*latest->m_pDocument);
}

CFileNotes& CDrawings::NotesOf(const AcApDocument& document) {
    return std::find_if(m_arDrawings.begin(), m_arDrawings.end(), IsOf(document))->m_notes;
}

int CDrawings::NumberOf(const AcApDocument& document) const {
    return std::find_if(m_arDrawings.begin(), m_arDrawings.end(), IsOf(document))->m_nNumber;
}

std::string CDrawings::NameOf(const AcApDocument& document) {
    return Utf8FromWide(document.fileName());
}
