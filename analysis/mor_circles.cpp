#include "analysis/mor_circles.h"

#include <cmath>

namespace {
constexpr double g_dSameTangent = 0.001;
constexpr double g_dSameCentrality = 0.001;
constexpr double g_dZeroIntercept = -1e-6;
} // namespace

int ComTangent::SameTangent(const ComTangent& other) const {
    return std::fabs(m_dC - other.m_dC) < g_dSameTangent && std::fabs(m_dPhi - other.m_dPhi) < g_dSameTangent;
}

float ComTangent::CentreDistance(float fMiddle) const {
    float fSum = 0.0F;
    for (int i = 0; i < Support(); i++) {
        const float fFirst = static_cast<float>(m_arFirst[i]) - fMiddle + 1.0F;
        const float fSecond = static_cast<float>(m_arSecond[i]) - fMiddle + 1.0F;
        fSum += fFirst * fFirst + fSecond * fSecond;
    }
    return fSum / static_cast<float>(Support());
}

void ComTangent::AddSupport(int nLower, int nHigher) {
    m_arFirst.Add(nLower);
    m_arSecond.Add(nHigher);
}

int CMorCircles::AddCircle(double dCentre, double dRadius) {
    Add(MorCircle{dCentre, dRadius, static_cast<Adesk::Int64>(GetSize())});
    return 1;
}

ComTangent CMorCircles::TangentOfCircles(const MorCircle& a, const MorCircle& b) const {
    const double dCentres = b.m_dCentre - a.m_dCentre;
    const double dRadii = b.m_dRadius - a.m_dRadius;
    ComTangent tangent;
    tangent.m_dPhi = std::asin(dRadii / dCentres);
    tangent.m_dC = (a.m_dRadius - a.m_dCentre * std::sin(tangent.m_dPhi)) / std::cos(tangent.m_dPhi);
    return tangent;
}

void CMorCircles::CollectTangents(CTangents& tangents) const {
    const int nCircles = static_cast<int>(GetSize());
    for (int i = 0; i < nCircles - 1; i++) {
        for (int j = i + 1; j < nCircles; j++) {
            ComTangent tangent = TangentOfCircles(GetAt(i), GetAt(j));
            int nSame = 0;
            while (nSame < tangents.GetSize() && !tangents[nSame].SameTangent(tangent))
                nSame++;
            if (nSame < tangents.GetSize()) {
                tangents[nSame].AddSupport(i, j);
            } else {
                tangent.AddSupport(i, j);
                tangents.Add(tangent);
            }
        }
    }
}

int CMorCircles::FindEnvelope(double* pC, double* pPhi) const {
    CTangents tangents;
    CollectTangents(tangents);
    const int nTangents = static_cast<int>(tangents.GetSize());
    if (nTangents == 0) return 0;

    bool bPositive = false;
    for (int i = 0; i < nTangents && !bPositive; i++)
        bPositive = tangents[i].m_dC > g_dZeroIntercept;
    if (!bPositive) {
        // Soil has no negative cohesion: the line through the origin that touches the second to last circle.
        const int nCircle = static_cast<int>(GetSize()) - 2;
        if (nCircle < 0) return 0;
        *pC = 0.0;
        *pPhi = std::asin(GetAt(nCircle).m_dRadius / GetAt(nCircle).m_dCentre);
        return 1;
    }

    CArray<int, int> candidates;
    int nGreatest = 0;
    for (int i = 0; i < nTangents; i++) {
        if (0.0 > tangents[i].m_dC) continue; // written so that a NaN stays a candidate
        const int nSupport = tangents[i].Support();
        if (nSupport < nGreatest) continue;
        if (nSupport > nGreatest) candidates.RemoveAll();
        nGreatest = nSupport;
        candidates.Add(i);
    }
    if (candidates.GetSize() == 0) return 1;

    int nChosen = 0;
    if (candidates.GetSize() == 1) {
        nChosen = candidates[0];
    } else {
        // The search starts at tangent 0, candidate or not, with the first candidate's distance.
        const float fMiddle = static_cast<float>((static_cast<double>(GetSize()) + 1.0) / 2.0);
        float fBest = tangents[candidates[0]].CentreDistance(fMiddle);
        for (int i = 1; i < candidates.GetSize(); i++) {
            const float fDistance = tangents[candidates[i]].CentreDistance(fMiddle);
            if (fBest > fDistance || std::fabs(fBest - fDistance) < g_dSameCentrality) {
                nChosen = candidates[i];
                fBest = fDistance;
            }
        }
    }
    *pC = tangents[nChosen].m_dC;
    *pPhi = tangents[nChosen].m_dPhi;
    return 1;
}
