#include "host/console/host_documents.h"

#include "host/console/drawing_session.h"
#include "host/files/drawing_failure.h"
#include "platform/windows/code_page.h"
#include "platform/windows/path.h"

namespace {

/// A module asked for this: what the user answers reaches it as a status.
template <class Change>
Acad::ErrorStatus StatusOf(CHost& host, const Change& change) {
    try {
        return change();
    } catch (const CDrawingFailure& failure) {
        return failure.Status();
    } catch (const CCommandCancelled&) {
        return Acad::eUserBreak;
    } catch (const CRunFailure& failure) {
        host.m_answers.Fail(failure.Status(), failure.what());
        return Acad::eUserBreak;
    }
}

} // namespace

void CHostDocuments::Activate(AcApDocument& document) {
    ActivateDrawing(m_host, document);
}

Acad::ErrorStatus CHostDocuments::NewDocument() {
    return StatusOf(m_host, [this] {
        NewDrawing(m_host);
        return Acad::eOk;
    });
}

Acad::ErrorStatus CHostDocuments::OpenDocument(const std::wstring& strPath) {
    return StatusOf(m_host, [&] {
        std::string utf8;
        if (!ResolvePath({}, GbkFromWide(strPath), &utf8)) return Acad::eFileNotFound;
        OpenDrawing(m_host, utf8);
        return Acad::eOk;
    });
}

Acad::ErrorStatus CHostDocuments::CloseDocument(AcApDocument& document) {
    return StatusOf(m_host, [&] {
        CloseDrawing(m_host, document);
        return Acad::eOk;
    });
}
