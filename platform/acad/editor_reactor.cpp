#include "platform/acad/editor_reactor.h"

#include "platform/acad/rx_class.h"
#include "platform/acad/wide_names.h"

#include <algorithm>

ACRX_DEFINE_DESC(AcRxEventReactor, AcRxObject)
ACRX_DEFINE_DESC(AcEditorReactor, AcRxEventReactor)
ACRX_DEFINE_DESC(AcEditor, AcRxObject)

void AcEditor::addReactor(AcEditorReactor* pReactor) {
    if (!pReactor || std::count(m_arReactors.begin(), m_arReactors.end(), pReactor)) return;
    m_arReactors.push_back(pReactor);
}

void AcEditor::removeReactor(AcEditorReactor* pReactor) {
    std::erase(m_arReactors, pReactor);
}

void AcEditor::RemoveReactorsOf(const std::function<bool(const void*)>& isInside) {
    std::erase_if(m_arReactors, [&](const AcEditorReactor* pReactor) {
        return isInside(*reinterpret_cast<const void* const*>(pReactor)); // its table of virtual functions
    });
}

void AcEditor::Fire(const ACHAR* globalName, void (AcEditorReactor::*pEvent)(const ACHAR*)) {
    const std::wstring strName = UpperName(globalName ? globalName : L"");
    // A reactor may remove itself or another (and destroy it) while it is told: only those that still stand
    // in the list are told next.
    const std::vector<AcEditorReactor*> reactors = m_arReactors;
    for (AcEditorReactor* pReactor : reactors)
        if (std::count(m_arReactors.begin(), m_arReactors.end(), pReactor))
            (pReactor->*pEvent)(strName.c_str());
}

void AcEditor::FireCommandWillStart(const ACHAR* globalName) {
    Fire(globalName, &AcEditorReactor::commandWillStart);
}

void AcEditor::FireCommandEnded(const ACHAR* globalName) {
    Fire(globalName, &AcEditorReactor::commandEnded);
}

void AcEditor::FireCommandCancelled(const ACHAR* globalName) {
    Fire(globalName, &AcEditorReactor::commandCancelled);
}

void AcEditor::FireCommandFailed(const ACHAR* globalName) {
    Fire(globalName, &AcEditorReactor::commandFailed);
}
