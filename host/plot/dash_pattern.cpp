#include "host/plot/dash_pattern.h"

#include <algorithm>
#include <cmath>
#include <numeric>

CDashes MakeDashes(const std::vector<double>& arLinetype, double dScale) {
    struct CPiece {
        bool m_bStroke;
        double m_dLength;
    };
    std::vector<CPiece> arPieces;
    for (const double dEntry : arLinetype) {
        const bool bStroke = dEntry >= 0.0;
        const double dLength = dEntry == 0.0 ? THIN_LINE : std::abs(dEntry) * dScale;
        if (!std::isfinite(dLength) || !(dScale > 0.0)) return {};
        if (!arPieces.empty() && arPieces.back().m_bStroke == bStroke)
            arPieces.back().m_dLength += dLength;
        else
            arPieces.push_back({bStroke, dLength});
    }
    if (arPieces.size() < 2) return {};

    // The row is turned until it begins with a stroke and ends with a gap.
    CDashes dashes;
    if (arPieces.size() % 2 != 0) {
        const CPiece last = arPieces.back();
        arPieces.pop_back();
        arPieces.front().m_dLength += last.m_dLength;
        dashes.m_dPhase = last.m_dLength;
    }
    const double dTotal =
        std::accumulate(arPieces.begin(), arPieces.end(), 0.0,
                        [](double dSum, const CPiece& piece) { return dSum + piece.m_dLength; });
    if (!std::isfinite(dTotal) || dTotal < 2.0 * THIN_LINE) return {};
    if (!arPieces.front().m_bStroke) {
        dashes.m_dPhase = std::fmod(dashes.m_dPhase + dTotal - arPieces.front().m_dLength, dTotal);
        std::rotate(arPieces.begin(), arPieces.begin() + 1, arPieces.end());
    }
    for (const CPiece& piece : arPieces)
        dashes.m_arLengths.push_back(piece.m_dLength);
    return dashes;
}
