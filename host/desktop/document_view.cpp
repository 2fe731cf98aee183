#include "host/desktop/document_view.h"

namespace {

unsigned g_nLastRevision = 0;

} // namespace

/// After the selection or the scene has changed.
void CDocumentView::TakeSelection() {
    m_grips.Take(Selection());
    m_nRevision = ++g_nLastRevision;
}

void CDocumentView::Sync() {
    m_view = Drawing().View();
    if (!m_scene.Sync(Drawing())) return;
    std::vector<AcDbObjectId> arGone;
    for (const AcDbObjectId& id : Selection())
        if (!m_scene.Find(id)) arGone.push_back(id);
    Deselect(arGone);
}

void CDocumentView::Select(const std::vector<AcDbObjectId>& ids) {
    for (const AcDbObjectId& id : ids)
        m_selection.Add(id);
    TakeSelection();
}

void CDocumentView::Deselect(const std::vector<AcDbObjectId>& ids) {
    m_selection.Remove(ids);
    TakeSelection();
}

void CDocumentView::SelectAll() {
    std::vector<AcDbObjectId> ids;
    for (const CSceneItem& item : m_scene.Items())
        ids.push_back(item.m_id);
    Select(ids);
}

void CDocumentView::ClearSelection() {
    m_selection.Clear();
    TakeSelection();
}

void CDocumentView::SetFrame(const CViewFrame& frame) {
    m_view = ViewOf(frame);
    Drawing().SetView(m_view);
}

std::string CDocumentView::SelectionWord() const {
    std::string strWord;
    for (const AcDbObjectId& id : Selection())
        strWord += (strWord.empty() ? "#" : "+#") + id.handle().Hex();
    return strWord;
}
