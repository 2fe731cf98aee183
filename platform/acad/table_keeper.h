#pragma once

#include "platform/acad/db_database.h"

#include <set>

/// Keeps a drawing's variables and tables as they are when it is made, and puts them back when it goes: what
/// a look at the drawing changes is no change of the drawing, and nothing to undo.
class CTableKeeper {
public:
    explicit CTableKeeper(AcDbDatabase& drawing);
    ~CTableKeeper();
    CTableKeeper(const CTableKeeper&) = delete;
    CTableKeeper& operator=(const CTableKeeper&) = delete;

private:
    struct CStyle {
        AcDbObjectId m_id;
        std::wstring m_strTypeface, m_strFileName, m_strBigFontFileName;
        Adesk::Boolean m_bBold = 0, m_bItalic = 0;
        int m_nCharset = 0, m_nPitchAndFamily = 0;
        double m_dTextSize = 0.0, m_dXScale = 1.0, m_dObliquingAngle = 0.0;
        bool operator==(const CStyle&) const = default;
    };
    struct CLinetype {
        AcDbObjectId m_id;
        std::wstring m_strComments;
        std::vector<double> m_arDashes;
    };
    struct CLayer {
        AcDbObjectId m_id, m_idLinetype;
        Adesk::UInt16 m_nColorIndex = 0;
    };

    static CStyle StyleOf(AcDbObjectId id);
    static void PutBack(const CStyle& style);
    static void PutBack(const CLinetype& linetype);
    static void PutBack(const CLayer& layer);
    void KeepTables();
    void EraseNewRecords() const;

    AcDbDatabase& m_drawing;
    bool m_bModified, m_bRecording;
    CDbVariables m_variables;
    std::set<AcDbHandle> m_setRecords; // of all tables
    std::vector<CStyle> m_arStyles;
    std::vector<CLinetype> m_arLinetypes;
    std::vector<CLayer> m_arLayers;
};
