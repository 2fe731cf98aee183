#pragma once

#include "platform/acad/db_database.h"
#include "platform/mfc/collections.h"

/// A block that comes from a template drawing: its texts in brackets are places to be filled, its attributes
/// are filled on each reference. One object serves one target drawing.
class CInsertBlock {
public:
    CInsertBlock() = default;
    virtual ~CInsertBlock() = default;
    CInsertBlock(const CInsertBlock&) = delete;
    CInsertBlock& operator=(const CInsertBlock&) = delete;

    /// Brings a drawing file, sought by the host, into the target as a block of that name; what the block
    /// held before goes. 1, or 0: with a message when the file is not found, without when it is none that
    /// can be such a block.
    int InsertBlockDef(const CString& strFile, const CString& strName, AcDbDatabase* pDatabase);

    /// Puts values into the definition's texts in brackets. A key is spent on the first text that equals it;
    /// a further text takes a further entry of the key. Lists of different length change nothing.
    void ReplaceBlockTexts(const CStringArray& saKeys, const CStringArray& saValues);

    /// Puts another text in place of the definition's first one that equals strPlaceholder, which begins with
    /// "[". 1 when there is one: its place, as templates mean it, is the only one in points then (else there
    /// is none), and its horizontal mode is added to modes.
    int FindBlockText(const CString& strPlaceholder, const CString& strReplacement, AcGePoint3dArray& points,
                      AcDbIntArray& modes);

    /// Adds a reference with its attributes to the target's model space, rotated by radians: its id, null on
    /// failure. When the definition cannot be opened, the reference is there and stays open for writing.
    AcDbObjectId InsertReference(const AcGePoint3d& ptPosition, double dRotation, double dXScale,
                                 double dYScale, AcDbDatabase* pDatabase);

    /// Fills the attributes of a reference whose tags are among the keys.
    static void FillAttributes(AcDbObjectId idReference, const CStringArray& saKeys,
                               const CStringArray& saValues);

    /// Marks the drawing's last entity as a frame, for the suite's other modules: its base point, name,
    /// width, height and margin, and how far the base point lies from where the entity is held. Gives 1.
    static int StampFrame(const AcGePoint3d& ptBase, const CString& strName, double dFL, double dFB,
                          double dFA);

    /// Takes the texts in brackets of the working drawing's model space away and keeps where they stood.
    void CollectMarkers();

    CMap<CString, const CString&, AcGePoint3d, const AcGePoint3d&> m_mapMarkers; ///< place by text
    CString m_strBlockName;
    AcDbObjectId m_idBlockDef;
    AcDbObjectId m_idLastRef; ///< the reference inserted last
};
