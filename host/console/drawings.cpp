#include "host/console/drawings.h"

#include "host/console/texts.h"
#include "platform/acad/host_application.h"
#include "platform/windows/code_page.h"

#include <filesystem>

CDrawings::~CDrawings() {
    acdbHostApplicationServices()->setWorkingDatabase(nullptr);
}

void CDrawings::AddNew() {
    m_arDrawings.push_back(MakeNew());
    MakeCurrent(m_arDrawings.size() - 1);
}

void CDrawings::ReplaceCurrent() {
    m_arDrawings[m_nCurrent] = MakeNew();
    MakeCurrent(m_nCurrent);
}

std::string CDrawings::Name() const {
    return NameOf(m_arDrawings[m_nCurrent]);
}

std::string CDrawings::FolderGbk() const {
    std::wstring strFile;
    Current().getFilename(strFile);
    const std::filesystem::path path(Utf8FromWide(strFile));
    std::string gbk;
    return Utf8ToGbk(path.parent_path().string(), &gbk) ? gbk : std::string();
}

std::vector<std::string> CDrawings::ChangedNames() const {
    std::vector<std::string> names;
    for (const COpenDrawing& drawing : m_arDrawings)
        if (drawing.m_pDatabase->IsModified()) names.push_back(NameOf(drawing));
    return names;
}

std::string CDrawings::NameOf(const COpenDrawing& drawing) {
    std::wstring strFile;
    drawing.m_pDatabase->getFilename(strFile);
    return strFile.empty() ? "Drawing" + std::to_string(drawing.m_nNumber) : Utf8FromWide(strFile);
}

CDrawings::COpenDrawing CDrawings::MakeNew() {
    COpenDrawing drawing{std::make_unique<AcDbDatabase>(), ++m_nMade};
    drawing.m_pDatabase->SetModified(false);
    return drawing;
}

void CDrawings::MakeCurrent(size_t index) {
    m_nCurrent = index;
    acdbHostApplicationServices()->setWorkingDatabase(m_arDrawings[index].m_pDatabase.get());
}
