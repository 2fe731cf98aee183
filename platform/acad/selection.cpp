#include "platform/acad/selection.h"

#include "platform/acad/ads_point.h"
#include "platform/acad/db_stub.h"
#include "platform/acad/host_application.h"
#include "platform/acad/selection_filter.h"
#include "platform/windows/code_page.h"

#include <algorithm>
#include <map>
#include <optional>
#include <unordered_set>

namespace {

using CIds = std::vector<AcDbObjectId>;

/// Entities of a drawing, each once, in the order they came.
class CSelectionSet {
public:
    CSelectionSet() = default;
    CSelectionSet(const AcDbDatabase& drawing, CIds ids)
        : m_pDrawing(&drawing)
        , m_arIds(std::move(ids)) {}

    const AcDbDatabase* Drawing() const { return m_pDrawing; }
    const CIds& Ids() const { return m_arIds; }
    bool Has(AcDbObjectId id) { return Members().contains(id.Stub()); }
    void Add(AcDbObjectId id) {
        if (Members().insert(id.Stub()).second) m_arIds.push_back(id);
    }
    bool Remove(AcDbObjectId id) { return Members().erase(id.Stub()) && std::erase(m_arIds, id); }

private:
    using CMembers = std::unordered_set<const CDbStub*>;

    /// Made when first asked for: most sets are only walked.
    CMembers& Members() {
        if (!m_members) {
            m_members.emplace();
            for (const AcDbObjectId& id : m_arIds)
                m_members->insert(id.Stub());
        }
        return *m_members;
    }

    const AcDbDatabase* m_pDrawing = nullptr;
    CIds m_arIds;
    std::optional<CMembers> m_members;
};

constexpr std::intptr_t g_nSetMark = 1; // second part of a set's name

/// The sets made and not yet released, and what was selected before in each drawing.
struct CSelections {
    std::map<std::intptr_t, CSelectionSet> m_mapSets;
    std::intptr_t m_nLastSet = 0;
    std::map<const AcDbDatabase*, CIds> m_mapPrevious;
};

CSelections& Selections() {
    static auto* const pSelections = new CSelections; // a static drawing may outlive any other
    return *pSelections;
}

CSelectionSet* Find(const ads_name ss) {
    if (!ss || ss[1] != g_nSetMark) return nullptr;
    std::map<std::intptr_t, CSelectionSet>& sets = Selections().m_mapSets;
    const auto found = sets.find(ss[0]);
    return found == sets.end() ? nullptr : &found->second;
}

void NewSet(const AcDbDatabase& drawing, CIds ids, ads_name ss) {
    CSelections& selections = Selections();
    selections.m_mapSets[++selections.m_nLastSet] = CSelectionSet(drawing, std::move(ids));
    ss[0] = selections.m_nLastSet;
    ss[1] = g_nSetMark;
}

void PutName(AcDbObjectId id, ads_name name) {
    ads_name made = {};
    acdbGetAdsName(made, id);
    std::copy_n(made, 2, name);
}

bool IsBefore(const AcDbObjectId& a, const AcDbObjectId& b) {
    return a.handle() < b.handle();
}

/// The living entities of a block, whoever has it open.
CIds LivingOf(AcDbObjectId idBlock) {
    const CDbOpen<AcDbBlockTableRecord> opened(idBlock); // nothing where it is open for writing already
    const auto* const pBlock = PeekObject<AcDbBlockTableRecord>(idBlock);
    return pBlock && pBlock->isReadEnabled() ? pBlock->EntityIds() : CIds();
}

/// The same in database order.
CIds EntitiesOf(AcDbObjectId idBlock) {
    CIds ids = LivingOf(idBlock);
    std::sort(ids.begin(), ids.end(), IsBefore);
    return ids;
}

CIds ModelAndPaperSpace(const AcDbDatabase& drawing) {
    CIds ids = EntitiesOf(drawing.ModelSpaceId());
    const auto* const pBlocks = PeekObject<AcDbBlockTable>(drawing.blockTableId());
    const CIds paper = pBlocks ? EntitiesOf(pBlocks->Find(ACDB_PAPER_SPACE)) : CIds();
    ids.insert(ids.end(), paper.begin(), paper.end());
    return ids;
}

CIds LastOf(const CIds& ids) {
    return ids.empty() ? ids : CIds{ids.back()};
}

CIds Previous(const AcDbDatabase& drawing) {
    CIds ids = Selections().m_mapPrevious[&drawing];
    std::erase_if(ids, [](const AcDbObjectId& id) { return id.isErased(); });
    return ids;
}

/// What of model space the picture drawn last puts in the box of two corners.
CIds InBox(const AcDbDatabase& drawing, bool bWhole, const void* pt1, const void* pt2) {
    const auto* const pCorner = static_cast<const ads_real*>(pt1);
    const auto* const pOpposite = static_cast<const ads_real*>(pt2);
    const AcGePoint3d corner(pCorner[0], pCorner[1], 0.0), opposite(pOpposite[0], pOpposite[1], 0.0);
    CIds ids = EntitiesOf(drawing.ModelSpaceId());
    std::erase_if(ids, [&](const AcDbObjectId& id) {
        const auto pPicture = PeekObject<AcDbEntity>(id)->Picture();
        return !pPicture || !(bWhole ? LiesWithin : PassesThrough)(*pPicture, corner, opposite);
    });
    return ids;
}

/// What the mode stands for, before the filter; nothing for an unknown mode.
std::optional<CIds> Gather(const AcDbDatabase& drawing, const std::wstring& strMode, const void* pt1,
                           const void* pt2) {
    if (strMode == L"X") return ModelAndPaperSpace(drawing);
    if (strMode == L"L") return LastOf(EntitiesOf(drawing.ModelSpaceId()));
    if (strMode == L"P") return Previous(drawing);
    if ((strMode == L"C" || strMode == L"W") && pt1 && pt2) return InBox(drawing, strMode == L"W", pt1, pt2);
    return std::nullopt;
}

/// The user's picks.
int Pick(CIds* pIds) {
    CEditorHost* const pHost = EditorHost();
    if (!pHost) return RTERROR;
    const bool bPicked = pHost->AskSelection("Select objects: ", pIds) != CPromptResult::Cancel;
    return bPicked ? RTNORM : RTCAN;
}

} // namespace

int acedEntSel(const ACHAR* prompt, ads_name name, ads_point point) {
    CEditorHost* const pHost = EditorHost();
    if (!pHost || !name || !point) return RTERROR;
    AcDbObjectId id;
    AcGePoint3d picked;
    const std::string strPrompt = GbkFromWide(prompt ? prompt : L"Select object: ");
    const CPromptResult result = pHost->AskEntity(strPrompt, &id, &picked);
    if (result == CPromptResult::Cancel) return RTCAN;
    if (result == CPromptResult::None) return RTERROR;
    PutName(id, name);
    PutPoint(picked, point);
    return RTNORM;
}

int acdbEntLast(ads_name result) {
    const AcDbDatabase* const pDrawing = acdbHostApplicationServices()->workingDatabase();
    if (!pDrawing || !result) return RTERROR;
    const CIds ids = LivingOf(pDrawing->ModelSpaceId());
    ads_name name;
    if (ids.empty() || acdbGetAdsName(name, *std::ranges::max_element(ids, IsBefore)) != Acad::eOk)
        return RTERROR;
    std::copy(std::begin(name), std::end(name), result);
    return RTNORM;
}

int acedSSGet(const ACHAR* mode, const void* pt1, const void* pt2, const resbuf* pFilter, ads_name ss) {
    const AcDbDatabase* const pDrawing = acdbHostApplicationServices()->workingDatabase();
    if (!pDrawing || !ss || !IsSelectionFilter(pFilter)) return RTERROR;
    const std::wstring strMode = mode ? mode : L"";
    CIds picked;
    if (const int status = mode ? RTNORM : Pick(&picked); status != RTNORM) return status;
    std::optional<CIds> ids = mode ? Gather(*pDrawing, strMode, pt1, pt2) : std::move(picked);
    if (!ids) return RTERROR;
    std::erase_if(*ids, [pFilter](const AcDbObjectId& id) {
        return !PassesFilter(*PeekObject<AcDbEntity>(id), pFilter);
    });
    if (ids->empty()) return RTERROR;
    if (strMode != L"X") Selections().m_mapPrevious[pDrawing] = *ids;
    NewSet(*pDrawing, std::move(*ids), ss);
    return RTNORM;
}

int acedSSFree(const ads_name ss) {
    if (!Find(ss)) return RTERROR;
    Selections().m_mapSets.erase(ss[0]);
    return RTNORM;
}

int acedSSLength(const ads_name ss, Adesk::Int32* pLength) {
    const CSelectionSet* const pSet = Find(ss);
    if (!pSet || !pLength) return RTERROR;
    *pLength = static_cast<Adesk::Int32>(pSet->Ids().size());
    return RTNORM;
}

int acedSSName(const ads_name ss, Adesk::Int32 index, ads_name entity) {
    const CSelectionSet* const pSet = Find(ss);
    if (!pSet || !entity || index < 0 || static_cast<std::size_t>(index) >= pSet->Ids().size())
        return RTERROR;
    PutName(pSet->Ids()[static_cast<std::size_t>(index)], entity);
    return RTNORM;
}

int acedSSAdd(const ads_name entity, const ads_name ss, ads_name result) {
    const AcDbDatabase* const pDrawing = acdbHostApplicationServices()->workingDatabase();
    AcDbObjectId id;
    if (!pDrawing || !result || (entity && acdbGetObjectId(id, entity) != Acad::eOk) || (ss && !Find(ss)))
        return RTERROR;
    if (ss) {
        std::copy_n(ss, 2, result);
    } else {
        NewSet(*pDrawing, {}, result);
    }
    if (entity) Find(result)->Add(id);
    return RTNORM;
}

int acedSSDel(const ads_name entity, const ads_name ss) {
    CSelectionSet* const pSet = Find(ss);
    AcDbObjectId id;
    if (!pSet || !entity || acdbGetObjectId(id, entity) != Acad::eOk) return RTERROR;
    return pSet->Remove(id) ? RTNORM : RTERROR;
}

int acedSSMemb(const ads_name entity, const ads_name ss) {
    CSelectionSet* const pSet = Find(ss);
    AcDbObjectId id;
    if (!pSet || !entity || acdbGetObjectId(id, entity) != Acad::eOk) return RTERROR;
    return pSet->Has(id) ? RTNORM : RTERROR;
}

void ForgetSelections(const AcDbDatabase& drawing) {
    CSelections& selections = Selections();
    std::erase_if(selections.m_mapSets,
                  [&drawing](const auto& set) { return set.second.Drawing() == &drawing; });
    selections.m_mapPrevious.erase(&drawing);
}
