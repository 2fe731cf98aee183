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
    Add(MorCircle{dCentre, dRadius, GetSize()});
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

namespace {
using CTangents = CArray<ComTangent, const ComTangent&>;
using CCandidates = CArray<int, int>; // places in the list of tangents

/// The tangents of all pairs, those that coincide as one with all their pairs; it keeps the values of the
/// first.
CTangents CollectTangents(const CMorCircles& circles) {
    CTangents tangents;
    for (int i = 0; i < circles.GetSize() - 1; i++) {
        for (int j = i + 1; j < circles.GetSize(); j++) {
            ComTangent tangent = circles.TangentOfCircles(circles[i], circles[j]);
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
    return tangents;
}

/// Whether every intercept lies below 0 by more than noise, or is no number.
bool AllNegative(const CTangents& tangents) {
    for (const ComTangent& tangent : tangents)
        if (tangent.m_dC > g_dZeroIntercept) return false;
    return true;
}

/// Soil has no negative cohesion: the line through the origin that touches the second to last circle. 0 when
/// there is no such circle.
int TouchFromOrigin(const CMorCircles& circles, double* pC, double* pPhi) {
    const int nCircle = circles.GetSize() - 2;
    if (nCircle < 0) return 0;
    *pC = 0.0;
    *pPhi = std::asin(circles[nCircle].m_dRadius / circles[nCircle].m_dCentre);
    return 1;
}

/// The tangents that most pairs share; those with a negative intercept are passed over.
CCandidates MostSupported(const CTangents& tangents) {
    CCandidates candidates;
    int nGreatest = 0;
    for (int i = 0; i < tangents.GetSize(); i++) {
        if (0.0 > tangents[i].m_dC) continue; // written so that a NaN stays a candidate
        const int nSupport = tangents[i].Support();
        if (nSupport < nGreatest) continue;
        if (nSupport > nGreatest) candidates.RemoveAll();
        nGreatest = nSupport;
        candidates.Add(i);
    }
    return candidates;
}

/// Of several candidates the place of the one whose circles lie nearest to the middle of the list.
int MostCentral(const CTangents& tangents, const CCandidates& candidates, int nCircles) {
    const float fMiddle = static_cast<float>((static_cast<double>(nCircles) + 1.0) / 2.0);
    // The search starts at tangent 0, candidate or not, with the first candidate's distance.
    int nChosen = 0;
    float fBest = tangents[candidates[0]].CentreDistance(fMiddle);
    for (int i = 1; i < candidates.GetSize(); i++) {
        const float fDistance = tangents[candidates[i]].CentreDistance(fMiddle);
        if (fBest > fDistance || std::fabs(fBest - fDistance) < g_dSameCentrality) {
            nChosen = candidates[i];
            fBest = fDistance;
        }
    }
    return nChosen;
}
} // namespace

int CMorCircles::FindEnvelope(double* pC, double* pPhi) const {
    const CTangents tangents = CollectTangents(*this);
    if (tangents.IsEmpty()) return 0;
    if (AllNegative(tangents)) return TouchFromOrigin(*this, pC, pPhi);

    const CCandidates candidates = MostSupported(tangents);
    if (candidates.IsEmpty()) return 1;
    const int nChosen =
        candidates.GetSize() == 1 ? candidates[0] : MostCentral(tangents, candidates, GetSize());
    *pC = tangents[nChosen].m_dC;
    *pPhi = tangents[nChosen].m_dPhi;
    return 1;
}
