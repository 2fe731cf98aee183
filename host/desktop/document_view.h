#pragma once

#include "host/console/picked_entities.h"
#include "host/desktop/grip_drag.h"
#include "host/desktop/view_frame.h"
#include "platform/acad/ap_document.h"

/// One drawing before the user: what is shown of it, and what is selected in it. It can be painted when a
/// command has closed the drawing already.
class CDocumentView {
public:
    CDocumentView(AcApDocument& document, CFonts& fonts)
        : m_document(document)
        , m_scene(fonts)
        , m_view(Drawing().View()) {}

    AcDbDatabase& Drawing() const { return *m_document.database(); }
    CScene& Scene() { return m_scene; }
    const CScene& Scene() const { return m_scene; }
    CGrips& Grips() { return m_grips; }
    const CGrips& Grips() const { return m_grips; }

    /// After a command: takes over what was drawn; what is no longer there is no longer selected.
    void Sync();

    const std::vector<AcDbObjectId>& Selection() const { return m_selection.Ids(); }
    bool IsSelected(AcDbHandle handle) const { return m_selection.Contains(handle); }
    void Select(const std::vector<AcDbObjectId>& ids); ///< besides those that are
    void Deselect(const std::vector<AcDbObjectId>& ids);
    void SelectAll();
    void ClearSelection();
    /// The selection as a word of a command line, `#1F+#20`; empty for none.
    std::string SelectionWord() const;

    /// Another number, and none that any drawing had, whenever what is shown or selected may be other.
    unsigned Revision() const { return m_nRevision; }

    CViewFrame Frame(const QSize& size) const { return FrameOf(m_view, size); }
    void SetFrame(const CViewFrame& frame);

private:
    void TakeSelection();

    AcApDocument& m_document;
    CScene m_scene;
    CPickedEntities m_selection;
    CGrips m_grips;
    CDbView m_view; // the drawing's, as it was after the last command
    unsigned m_nRevision = 0;
};
