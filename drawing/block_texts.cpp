// The texts in brackets of a block from a template.

#include "drawing/insert_block.h"

#include "drawing/placed_text.h"
#include "platform/acad/host_application.h"
#include "platform/windows/code_page.h"

#include <string_view>
#include <vector>

namespace {
constexpr double g_dPlaceOfRightText = 0.2;

bool IsPlaceholder(const AcDbText& text) {
    return *text.textString() == L'[';
}

bool IsMarker(const AcDbText& text) {
    return IsPlaceholder(text) && std::wstring_view(text.textString()).ends_with(L']');
}

/// The entities of a block; none when it cannot be opened.
std::vector<AcDbObjectId> EntitiesOf(AcDbObjectId idBlock, AcDb::OpenMode mode) {
    const CDbOpen<AcDbBlockTableRecord> block(idBlock, mode);
    return block ? block->EntityIds() : std::vector<AcDbObjectId>();
}

/// Where templates mean the text's place to be.
AcGePoint3d MeantPlace(const AcDbText& text) {
    const AcGePoint3d pt = text.position();
    switch (text.horizontalMode()) {
    case AcDb::kTextCenter:
        return {pt.x / 2.0, pt.y, pt.z};
    case AcDb::kTextRight:
        return {g_dPlaceOfRightText, pt.y, pt.z};
    case AcDb::kTextMid:
        return {pt.x / 2.0, pt.y + text.height() / 2.0, pt.z};
    default:
        return pt;
    }
}

/// Keys that are each spent on one text.
class CSpentOnce {
public:
    explicit CSpentOnce(const CStringArray& saKeys) {
        for (const CString& strKey : saKeys)
            m_arKeys.push_back({WideFromGbk(strKey.View())});
    }
    /// The place of the first key that is the text and not spent yet, which it is then; -1 for none.
    int Spend(std::wstring_view strText) {
        for (std::size_t i = 0; i < m_arKeys.size(); ++i) {
            if (m_arKeys[i].m_bDone || m_arKeys[i].m_strKey != strText) continue;
            m_arKeys[i].m_bDone = true;
            return static_cast<int>(i);
        }
        return -1;
    }

private:
    struct CKey {
        std::wstring m_strKey;
        bool m_bDone = false;
    };
    std::vector<CKey> m_arKeys;
};
} // namespace

void CInsertBlock::ReplaceBlockTexts(const CStringArray& saKeys, const CStringArray& saValues) {
    if (saKeys.IsEmpty() || saKeys.GetSize() != saValues.GetSize()) return;
    CSpentOnce keys(saKeys);
    for (const AcDbObjectId id : EntitiesOf(m_idBlockDef, AcDb::kForWrite)) {
        const CDbOpen<AcDbText> text(id);
        if (!text || !IsPlaceholder(*text.Get())) continue;
        const int nKey = keys.Spend(text->textString());
        if (nKey >= 0 && text->upgradeOpen() == Acad::eOk) SetPlacedText(*text.Get(), saValues[nKey]);
    }
}

int CInsertBlock::FindBlockText(const CString& strPlaceholder, const CString& strReplacement,
                                AcGePoint3dArray& points, AcDbIntArray& modes) {
    points.removeAll();
    const std::wstring strSought = WideFromGbk(strPlaceholder.View());
    for (const AcDbObjectId id : EntitiesOf(m_idBlockDef, AcDb::kForRead)) {
        const CDbOpen<AcDbText> text(id);
        if (!text || !IsPlaceholder(*text.Get()) || text->textString() != strSought) continue;
        if (text->upgradeOpen() != Acad::eOk) return 0;
        points.append(MeantPlace(*text.Get()));
        modes.append(text->horizontalMode());
        SetPlacedText(*text.Get(), strReplacement);
        return 1;
    }
    return 0;
}

void CInsertBlock::CollectMarkers() {
    const AcDbDatabase* const pDatabase = acdbHostApplicationServices()->workingDatabase();
    if (!pDatabase) return;
    for (const AcDbObjectId id : EntitiesOf(pDatabase->ModelSpaceId(), AcDb::kForRead)) {
        const CDbOpen<AcDbText> text(id);
        if (!text || !IsMarker(*text.Get()) || text->upgradeOpen() != Acad::eOk) continue;
        m_mapMarkers.SetAt(CString(text->textString()), text->position());
        text->erase();
    }
}
