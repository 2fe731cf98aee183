#include "host/files/block_check.h"

#include "platform/acad/db_block_reference.h"

#include <algorithm>
#include <map>

namespace {

constexpr int g_nDeepest = 100;
constexpr double g_dMostShown = 1e7;

/// What a block holds, with all that stands in its blocks.
struct CContent {
    double m_dShown = 0.0; ///< entities, each as often as it is shown
    int m_nLevels = 0;     ///< of blocks within it
    bool m_bCounted = false;
};

class CBlockCheck {
public:
    void Check(AcDbObjectId idBlock) { Count(idBlock, 0); }

private:
    [[noreturn]] static void Fail(AcDbObjectId idBlock, const char* szWhat) {
        throw CBlockFault{SymbolName(idBlock), szWhat};
    }

    /// The content of a block that stands in so many others.
    const CContent& Count(AcDbObjectId idBlock, int nDepth) {
        const auto [place, bNew] = m_mapContents.try_emplace(idBlock.handle());
        CContent& content = place->second;
        if (!bNew && !content.m_bCounted) Fail(idBlock, "it holds itself");
        if (nDepth + content.m_nLevels > g_nDeepest) Fail(idBlock, "blocks within blocks too deep");
        if (bNew) CountEntities(idBlock, nDepth, content);
        if (content.m_dShown > g_dMostShown) Fail(idBlock, "blocks within blocks show too many entities");
        return content;
    }

    void CountEntities(AcDbObjectId idBlock, int nDepth, CContent& content) {
        const CDbOpen<AcDbBlockTableRecord> block(idBlock);
        const std::vector<AcDbObjectId> ids = block ? block->EntityIds() : std::vector<AcDbObjectId>();
        for (const AcDbObjectId& id : ids) {
            content.m_dShown += 1.0;
            const CDbOpen<AcDbBlockReference> reference(id);
            if (!reference) continue;
            const CContent& inner = Count(reference->blockTableRecord(), nDepth + 1);
            content.m_dShown += inner.m_dShown;
            content.m_nLevels = std::max(content.m_nLevels, inner.m_nLevels + 1);
        }
        content.m_bCounted = true;
    }

    std::map<AcDbHandle, CContent> m_mapContents; ///< stays where it is while others are counted
};

} // namespace

std::optional<CBlockFault> FindBlockFault(const AcDbDatabase& database) {
    try {
        CBlockCheck check;
        for (const AcDbObjectId& id : LivingRecords(database.blockTableId()))
            check.Check(id);
        return std::nullopt;
    } catch (const CBlockFault& fault) {
        return fault;
    }
}
