#pragma once
// Mohr circles of one sample's failure states and the strength envelope found from them.

#include "platform/acad/adesk.h"
#include "platform/mfc/collections.h"

/// One Mohr circle on the normal-stress axis, kPa.
struct MorCircle {
    double m_dCentre = 0.0;    ///< (σ1+σ3)/2
    double m_dRadius = 0.0;    ///< (σ1−σ3)/2
    Adesk::Int64 m_nIndex = 0; ///< its place in the list when it was added
};

/// A common tangent τ = c + σ·tan φ and the pairs of circles that share it.
class ComTangent {
public:
    /// 1 when c and φ both agree within 0.001: one flat tolerance for kPa and radians.
    int SameTangent(const ComTangent& other) const;
    /// Mean squared distance of the supporting circles, counted from 1, from the middle of the list.
    float CentreDistance(float fMiddle) const;
    void AddSupport(int nLower, int nHigher);
    int Support() const { return m_arFirst.GetSize(); }

    CArray<int, int> m_arFirst;  ///< lower circle index of each supporting pair
    CArray<int, int> m_arSecond; ///< higher circle index, parallel
    double m_dC = 0.0;           ///< intercept, kPa
    double m_dPhi = 0.0;         ///< angle, radians
};

/// Circles in the order of the failure rows, with the tangent search.
class CMorCircles : public CArray<MorCircle, const MorCircle&> {
public:
    int AddCircle(double dCentre, double dRadius); ///< returns 1

    /// External common tangent of two circles, the first the one of the lower index:
    /// sin φ = ΔR/Δcentre, c = (R − centre·sin φ)/cos φ (Mohr-Coulomb line touching both circles).
    /// NaN where there is none: equal centres, or one circle inside the other.
    ComTangent TangentOfCircles(const MorCircle& a, const MorCircle& b) const;

    /// The envelope: the tangent that most pairs share, ties settled by centrality; the line through the
    /// origin that touches the second to last circle when every intercept is negative. 1 when it settled,
    /// also when it left the outputs as they were (only intercepts between -1e-6 and 0); 0 when there is no
    /// pair. c in kPa, φ in radians.
    int FindEnvelope(double* pC, double* pPhi) const;
};
