#include "platform/acad/editor_reactor.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

namespace {

std::vector<std::wstring> g_told;

class CNotingReactor : public AcEditorReactor {
public:
    explicit CNotingReactor(std::wstring strMark)
        : m_strMark(std::move(strMark)) {}
    void commandWillStart(const ACHAR* name) override { g_told.push_back(m_strMark + L">" + name); }
    void commandEnded(const ACHAR* name) override { g_told.push_back(m_strMark + L"." + name); }
    void commandCancelled(const ACHAR* name) override { g_told.push_back(m_strMark + L"!" + name); }
    void commandFailed(const ACHAR* name) override { g_told.push_back(m_strMark + L"x" + name); }

private:
    std::wstring m_strMark;
};

/// Takes itself and another reactor away, and destroys the other one, when a command starts.
class CRemovingReactor : public AcEditorReactor {
public:
    CRemovingReactor(AcEditor& editor, std::unique_ptr<AcEditorReactor>& pOther)
        : m_editor(editor)
        , m_pOther(pOther) {}
    void commandWillStart(const ACHAR*) override {
        m_editor.removeReactor(m_pOther.get());
        m_pOther.reset();
        m_editor.removeReactor(this);
    }

private:
    AcEditor& m_editor;
    std::unique_ptr<AcEditorReactor>& m_pOther;
};

} // namespace

TEST(AcEditor, TellsReactorsInOrderTheNameInUpperCase) {
    g_told.clear();
    AcEditor editor;
    CNotingReactor first(L"a"), second(L"b");
    editor.addReactor(&first);
    editor.addReactor(&second);
    editor.addReactor(&first);
    editor.addReactor(nullptr);
    editor.FireCommandWillStart(L"regen");
    editor.removeReactor(&first);
    editor.FireCommandEnded(L"REGEN");
    editor.FireCommandCancelled(L"LINE");
    editor.FireCommandFailed(L"ARC");
    EXPECT_EQ(g_told, (std::vector<std::wstring>{L"a>REGEN", L"b>REGEN", L"b.REGEN", L"b!LINE", L"bxARC"}));
}

TEST(AcEditor, SurvivesReactorsThatAreRemovedWhileReactorsAreTold) {
    g_told.clear();
    AcEditor editor;
    std::unique_ptr<AcEditorReactor> pDoomed = std::make_unique<CNotingReactor>(L"doomed");
    CRemovingReactor remover(editor, pDoomed);
    CNotingReactor last(L"last");
    editor.addReactor(&remover);
    editor.addReactor(pDoomed.get());
    editor.addReactor(&last);
    editor.FireCommandWillStart(L"LINE");
    editor.FireCommandWillStart(L"ARC");
    EXPECT_EQ(g_told, (std::vector<std::wstring>{L"last>LINE", L"last>ARC"}));
}
