#pragma once

#include "platform/mfc/dialog.h"

/// "选择采用值入库": which strength values of a chart are adopted, the computed ones, those read from its
/// envelope or others. Its fields are filled before DoModal; what is adopted afterwards holds whatever its
/// result. c in kPa, φ in degrees; those of effective stress with an E.
class CDLGSAVE : public CDialog {
public:
    explicit CDLGSAVE(void* pOwner = nullptr);

    BOOL OnInitDialog() override;

    double m_dAdoptC = 0.0, m_dAdoptPhi = 0.0;
    double m_dCalcC = 0.0, m_dCalcPhi = 0.0;
    double m_dGraphPhi = 0.0, m_dGraphC = 0.0;
    CString m_strMethod; ///< the test method; only its values are rounded when the dialog opens
    double m_dAdoptCE = 0.0, m_dAdoptPhiE = 0.0;
    double m_dCalcCE = 0.0, m_dCalcPhiE = 0.0;
    double m_dGraphCE = 0.0, m_dGraphPhiE = 0.0;
    int m_nSource = 2;                         ///< 0 as computed, 1 as read from the envelope, 2 by hand
    double m_dSavedC = 0.0, m_dSavedPhi = 0.0; ///< what was adopted when the dialog opened
    double m_dSavedCE = 0.0, m_dSavedPhiE = 0.0;
    int m_nKind = 0; ///< values that can be adopted by hand: 0 of total stress, 2 of effective stress, 1 both

protected:
    void DoDataExchange(CDataExchange* pDX) override;
    std::span<const CMessageEntry> GetMessageMap() const override;

private:
    void RoundValues();
    /// Lets the adopted values of these be typed.
    void EnableAdopted(bool bTotal, bool bEffective);
    void EnableAdoptedOfKind();
    /// Shows these as the adopted values.
    void TakeOver(double dC, double dPhi, double dCE, double dPhiE);
    void OnFromCalc();
    void OnFromGraph();
    void OnByHand();
};
