#pragma once
// A working drawing and fixed text widths for tests of what is drawn.

#include "platform/acad/db_database.h"
#include "platform/acad/display_recorder.h"
#include "platform/acad/host_application.h"
#include "platform/acad/text_metrics.h"

#include <memory>

/// A drawing in force, a line type file that holds "Dashed2" (other files are found by their paths), and
/// fixed text widths, for the length of a test. What the module prints is kept.
class CTestDrawing final : public CEditorHost {
public:
    CTestDrawing();
    ~CTestDrawing() override;
    CTestDrawing(const CTestDrawing&) = delete;
    CTestDrawing& operator=(const CTestDrawing&) = delete;

    AcDbDatabase& Database() { return m_database; }
    std::string m_strPrinted; ///< GBK
    bool m_bHasLinetypeFile = true;
    bool m_bFindsFiles = true;             ///< others than the line type file
    std::vector<AcDbObjectId> m_arPicks;   ///< what is picked when asked; nothing: cancelled
    std::string m_strPrompt;               ///< of the last pick, GBK
    std::vector<std::string> m_arCommands; ///< run from within a command

    void Print(const std::string& strText) override { m_strPrinted += strText; }
    CPromptResult AskPoint(const std::string&, const AcGePoint3d*, AcGePoint3d*) override {
        return CPromptResult::Cancel;
    }
    CPromptResult AskEntity(const std::string& strPrompt, AcDbObjectId* pId, AcGePoint3d* pPoint) override;
    CPromptResult AskSelection(const std::string& strPrompt, std::vector<AcDbObjectId>* pIds) override;
    CCommandResult RunCommand(const std::vector<std::string>& arWords) override;
    std::string FindFile(const std::string& strName) override;

private:
    /// Every byte of a text is 0.8 of its height wide: a width that tests can compute by hand.
    class CMetrics final : public CTextMetrics {
        double AdvanceWidth(const CTextFont&, const std::string& strText) override {
            return 0.8 * static_cast<double>(strText.size());
        }
    };
    CMetrics m_metrics;
    AcDbDatabase m_database;
};

/// Primitives of one kind, in the order drawn.
template <class T>
std::vector<T> Shapes(const CDisplayList& list) {
    std::vector<T> shapes;
    for (const CPrimitive& primitive : list)
        if (const T* pShape = std::get_if<T>(&primitive.m_shape)) shapes.push_back(*pShape);
    return shapes;
}

using CEntities = std::vector<std::unique_ptr<AcDbEntity>>;

/// The entities of an explode form, in its order, taken over.
CEntities TakeOver(const AcDbVoidPtrArray& entitySet);
/// What the entity explodes into; nothing when it refuses.
CEntities Exploded(const AcDbEntity& entity);

/// Entities of one class, in order.
template <class T>
std::vector<const T*> Parts(const CEntities& entities) {
    std::vector<const T*> parts;
    for (const std::unique_ptr<AcDbEntity>& pEntity : entities)
        if (const T* pPart = T::cast(pEntity.get())) parts.push_back(pPart);
    return parts;
}
