// A drawing's way into and out of a file.

#include "platform/acad/ap_document_manager.h"
#include "platform/acad/db_database.h"
#include "platform/acad/db_stub.h"
#include "platform/acad/host_application.h"
#include "platform/windows/code_page.h"
#include "platform/windows/path.h"

#include <filesystem>

namespace {

constexpr int g_nDenyWrite = 0x20; // a share mode: nobody else may write the file meanwhile

/// The path that a name stands for, UTF-8; empty for none.
std::string PathOf(const ACHAR* fileName) {
    std::string utf8;
    if (fileName && *fileName) ResolvePath({}, GbkFromWide(fileName), &utf8);
    return utf8;
}

/// Whether a document has the file, and so may write it.
bool IsOfDocument(const std::string& strPath) {
    const std::unique_ptr<AcApDocumentIterator> pDocuments(acDocManagerPtr()->newAcApDocumentIterator());
    std::error_code noSuchFile;
    for (; !pDocuments->done(); pDocuments->step()) {
        const AcApDocument& document = *pDocuments->document();
        if (document.isNamedDrawing() &&
            std::filesystem::equivalent(PathOf(document.fileName()), strPath, noSuchFile))
            return true;
    }
    return false;
}

} // namespace

Acad::ErrorStatus AcDbDatabase::readDwgFile(const ACHAR* fileName, int shareMode) {
    if (!DrawingFileHost() || !m_mapStubs.empty()) return Acad::eNotApplicable;
    const std::string strPath = PathOf(fileName);
    if (strPath.empty()) return Acad::eInvalidInput;
    if (shareMode == g_nDenyWrite && IsOfDocument(strPath)) return Acad::eFileAccessErr;
    std::unique_ptr<AcDbDatabase> pRead;
    const Acad::ErrorStatus status = DrawingFileHost()->Read(strPath, &pRead);
    if (status != Acad::eOk) return status;
    TakeContents(*pRead);
    SetFilename(fileName);
    return Acad::eOk;
}

Acad::ErrorStatus AcDbDatabase::saveAs(const ACHAR* fileName) {
    if (!DrawingFileHost()) return Acad::eNotApplicable;
    const std::string strPath = PathOf(fileName);
    return strPath.empty() ? Acad::eInvalidInput : DrawingFileHost()->Write(*this, strPath);
}

/// For a drawing that holds nothing; the other one holds nothing afterwards.
void AcDbDatabase::TakeContents(AcDbDatabase& other) {
    m_mapStubs.swap(other.m_mapStubs);
    for (const auto& [handle, pStub] : m_mapStubs)
        pStub->m_pDatabase = this;
    m_arChanged.swap(other.m_arChanged);
    m_nNextHandle = other.m_nNextHandle;
    m_idBlockTable = other.m_idBlockTable;
    m_idLayerTable = other.m_idLayerTable;
    m_idLinetypeTable = other.m_idLinetypeTable;
    m_idTextStyleTable = other.m_idTextStyleTable;
    m_idRegAppTable = other.m_idRegAppTable;
    m_idModelSpace = other.m_idModelSpace;
    m_idNamedObjects = other.m_idNamedObjects;
    m_variables = other.m_variables;
    m_view = other.m_view;
    m_pOrigin = other.m_pOrigin;
}
