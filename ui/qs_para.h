#pragma once

#include "platform/mfc/collections.h"
#include "ui/qm_para.h"

/// How people and dates are put into a title block.
class CQSPara final : public CQMPara {
public:
    int Exchange(int bLoad) override;

    /// Adds the people of a drawing class to the fields of a title block, key and name at the same place of
    /// two lists. A key that is there takes the new name; of a repeated one the last name holds. Reads the
    /// switches first. The number of keys in the list.
    int GetPeople(const CString& strDrawingClass, CStringArray* psaKeys, CStringArray* psaValues);

    int m_bLB = 0;    ///< names and dates stay blank
    int m_bRQNow = 0; ///< dates are today, unless they stay blank

private:
    /// What stands for the name of a row of that role.
    CString ShownName(const CString& strRole, const CString& strName) const;
};
