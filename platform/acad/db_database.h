#pragma once

#include "platform/acad/db_dictionary.h"
#include "platform/acad/db_id_mapping.h"
#include "platform/acad/db_tables.h"
#include "platform/acad/undo_log.h"

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

namespace AcDb {
/// What becomes of a record of a table that is cloned where there is one of its name.
enum DuplicateRecordCloning {
    kDrcIgnore = 1,  ///< the one that is there stands for it
    kDrcReplace = 2, ///< the one that is there becomes like it
};
} // namespace AcDb

/// What a view of a drawing shows: so high a part of the plane about its center; how wide is the window's.
struct CDbView {
    AcGePoint2d m_ptCenter{210.0, 148.5}; // a lying sheet of A3, until zoomed
    double m_dHeight = 297.0;
};

/// What a drawing keeps of the file that it was read from beyond what it holds itself; the file's format
/// knows.
class CDbOrigin {
public:
    CDbOrigin() = default;
    CDbOrigin(const CDbOrigin&) = delete;
    CDbOrigin& operator=(const CDbOrigin&) = delete;
    virtual ~CDbOrigin() = default;
};

/// A drawing: its objects by handle, its tables, its variables. Several may be open at once.
class AcDbDatabase : public AcRxObject {
public:
    static AcRxClass* desc();
    AcRxClass* isA() const override { return AcDbDatabase::desc(); }

    /// A new drawing holds model and paper space, layer "0", the line types ByLayer, ByBlock and Continuous,
    /// the text style "Standard", the application "ACAD" and an empty dictionary of named objects. Without
    /// these it holds nothing at all, and is for readDwgFile.
    explicit AcDbDatabase(bool buildDefaultDrawing = true);
    ~AcDbDatabase() override;

    Acad::ErrorStatus getBlockTable(AcDbBlockTable*& pTable, AcDb::OpenMode mode);
    Acad::ErrorStatus getLayerTable(AcDbLayerTable*& pTable, AcDb::OpenMode mode);
    Acad::ErrorStatus getLinetypeTable(AcDbLinetypeTable*& pTable, AcDb::OpenMode mode);
    Acad::ErrorStatus getTextStyleTable(AcDbTextStyleTable*& pTable, AcDb::OpenMode mode);
    Acad::ErrorStatus getRegAppTable(AcDbRegAppTable*& pTable, AcDb::OpenMode mode);
    Acad::ErrorStatus getNamedObjectsDictionary(AcDbDictionary*& pDictionary, AcDb::OpenMode mode);
    AcDbObjectId blockTableId() const { return m_idBlockTable; }
    AcDbObjectId layerTableId() const { return m_idLayerTable; }
    AcDbObjectId linetypeTableId() const { return m_idLinetypeTable; }
    AcDbObjectId textStyleTableId() const { return m_idTextStyleTable; }
    AcDbObjectId regAppTableId() const { return m_idRegAppTable; }
    AcDbObjectId namedObjectsDictionaryId() const { return m_idNamedObjects; }
    AcDbObjectId ModelSpaceId() const { return m_idModelSpace; }

    double ltscale() const { return m_variables.m_dLtscale; }
    Acad::ErrorStatus setLtscale(double scale);
    AcGePoint3d insbase() const { return m_variables.m_ptInsbase; } ///< base point where it is inserted
    Acad::ErrorStatus setInsbase(const AcGePoint3d& base);
    AcDbObjectId celtype() const { return m_variables.m_idCeltype; } ///< null: ByLayer
    Acad::ErrorStatus setCeltype(AcDbObjectId idLinetype);
    AcDbObjectId clayer() const { return m_variables.m_idClayer; }
    Acad::ErrorStatus setClayer(AcDbObjectId idLayer);
    AcDbObjectId textstyle() const { return m_variables.m_idTextstyle; }
    Acad::ErrorStatus setTextstyle(AcDbObjectId idStyle);
    const CDbVariables& Variables() const { return m_variables; }
    void SetVariables(const CDbVariables& variables); ///< all at once, unchecked
    const CDbView& View() const { return m_view; }
    void SetView(const CDbView& view) { m_view = view; } ///< no change of the drawing

    /// Reads line type name from a line type file, sought by the host. eFileNotFound, eUndefinedLineType (the
    /// file does not hold it), eDuplicateKey (the drawing has it already).
    Acad::ErrorStatus loadLineTypeFile(const ACHAR* linetype, const ACHAR* fileName);

    const CDbOrigin* Origin() const { return m_pOrigin.get(); } ///< null for a drawing made here
    void SetOrigin(std::shared_ptr<const CDbOrigin> pOrigin) { m_pOrigin = std::move(pOrigin); }

    // Files, by way of the program's CDrawingFileHost: eNotApplicable where there is none. A name goes with
    // either slash and in any case. eInvalidInput for no name and for one that cannot be a path;
    // eFileAccessErr for a file that cannot be read or written; eFilerError for what it holds, or cannot
    // hold.

    /// Fills a drawing that was made without the default one, else eNotApplicable; it gets the file's name.
    /// eFileNotFound. A share mode of 0x20 denies others to write it: no document may have it open then.
    Acad::ErrorStatus readDwgFile(const ACHAR* fileName, int shareMode = 0x20);
    /// Writes the drawing, in the format that the name's ending stands for; it keeps its own name. What the
    /// file held stays beside it with the ending .bak. eWasOpenForWrite while an object is.
    Acad::ErrorStatus saveAs(const ACHAR* fileName);

    Acad::ErrorStatus getFilename(std::wstring& fileName) const;
    void SetFilename(const ACHAR* fileName) { m_strFilename = fileName; }
    Acad::ErrorStatus getAcDbObjectId(AcDbObjectId& id, AcDbHandle handle) const; ///< eUnknownHandle

    std::vector<AcDbObjectId> ObjectIds() const; ///< of all objects in database order, erased ones left out
    AcDbHandle handseed() const { return AcDbHandle(m_nNextHandle); } ///< what the next object gets
    /// Lets the next object have this handle, for a drawing that is being read; those after it pass over
    /// handles in use. False, and nothing changed, for a handle that an object has.
    bool SetHandseed(AcDbHandle handle);
    /// Gives an object of this drawing another handle, as a file has it, before anything refers to the former
    /// one. eInvalidInput for one that is taken, null or beyond 63 bits; eWrongDatabase.
    Acad::ErrorStatus SetHandle(AcDbObjectId id, AcDbHandle handle);

    /// Gives an object of this drawing, or none (null), as the owner of another, as a file has it.
    void SetOwner(AcDbObjectId id, AcDbObjectId idOwner);

    /// Gives a free object a handle and takes it over; it is open for writing afterwards.
    Acad::ErrorStatus AddObject(AcDbObjectId& id, AcDbObject* pObject, AcDbObjectId idOwner);

    // Clones. An object is cloned with all that it owns, and from another drawing with the records, styles
    // and other objects that it cannot be without. The first failure is returned: what could not be cloned
    // (eNotApplicable for an object whose class makes none) is left out, the rest is there. The original
    // stays as it was. Erased objects are left out.

    /// Clones objects of this drawing under an owner, a block or dictionary of this drawing. With
    /// deferXlation the clones stay empty until a later call with the same mapping. eNullObjectId,
    /// eWrongDatabase, eDuplicateRecordName for a record of a table.
    Acad::ErrorStatus deepCloneObjects(const AcDbObjectIdArray& objectIds, AcDbObjectId idOwner,
                                       AcDbIdMapping& mapping, bool deferXlation = false);
    /// The same into the drawing of the owner, which is another one. Records of tables, where they are among
    /// the objects, come to stand in the tables of that drawing.
    Acad::ErrorStatus wblockCloneObjects(const AcDbObjectIdArray& objectIds, AcDbObjectId idOwner,
                                         AcDbIdMapping& mapping, AcDb::DuplicateRecordCloning drc,
                                         bool deferXlation = false);
    /// A new drawing, the caller's to delete also when something could not be cloned: like this one; of the
    /// entities of a block, with its base point (eNotThatKindOfClass, eWrongDatabase); of some entities, with
    /// a base point. Null where no new drawing is made: eNoDatabase for one that holds nothing at all.
    Acad::ErrorStatus wblock(AcDbDatabase*& pOutput);
    Acad::ErrorStatus wblock(AcDbDatabase*& pOutput, AcDbObjectId idBlock);
    Acad::ErrorStatus wblock(AcDbDatabase*& pOutput, const AcDbObjectIdArray& objectIds,
                             const AcGePoint3d& basePoint);
    /// Makes a block of what another drawing has in model space, and brings all its layers, styles, line
    /// types and registered applications along. A block of that name gets this content in place of its own.
    /// The source is preserved in any case. eNullObjectPointer, eNoDatabase where either holds nothing at
    /// all, eInvalidInput for this drawing itself, for no name and for a space's; eSelfReference for a
    /// content that the block itself is part of.
    Acad::ErrorStatus insert(AcDbObjectId& idBlock, const ACHAR* blockName, AcDbDatabase* pSource,
                             bool preserveSource = true);
    /// Clones the other drawing's model space into this one's, transformed.
    Acad::ErrorStatus insert(const AcGeMatrix3d& xform, AcDbDatabase* pSource, bool preserveSource = true);

    /// Goes through the objects of all open drawings, erased ones too; an object that replace gives another
    /// for is destroyed, and the other takes its place. None of those replaced may be open.
    static void ReplaceObjects(const std::function<std::unique_ptr<AcDbObject>(AcDbObject&)>& replace);

    CUndoLog& UndoLog() { return m_undoLog; }

    /// Entities appended or changed (opened for writing) since the last call, erased ones left out, in
    /// database order; the host redraws them.
    std::vector<AcDbObjectId> TakeChangedEntities();
    bool IsModified() const { return m_bModified; } ///< changed since SetModified(false)
    void SetModified(bool bModified) { m_bModified = bModified; }

private:
    friend class AcDbObject;
    using CStubs = std::map<AcDbHandle, std::unique_ptr<CDbStub>>; // handle order is database order
    void PassUsedHandles(CStubs::const_iterator stub);
    void TakeContents(AcDbDatabase& other);
    void NoteChanged(CDbStub& stub);
    template <class T>
    Acad::ErrorStatus SetCurrent(AcDbObjectId CDbVariables::*pVariable, AcDbObjectId id);

    CStubs m_mapStubs;
    Adesk::UInt64 m_nNextHandle = 1;
    AcDbObjectId m_idBlockTable, m_idLayerTable, m_idLinetypeTable, m_idTextStyleTable, m_idRegAppTable;
    AcDbObjectId m_idModelSpace, m_idNamedObjects;
    CDbVariables m_variables;
    CDbView m_view;
    CUndoLog m_undoLog{*this};
    std::wstring m_strFilename;
    std::shared_ptr<const CDbOrigin> m_pOrigin;
    std::vector<AcDbObjectId> m_arChanged;
    bool m_bModified = false;
};

/// A symbol table record's name as GBK; empty for a null id.
std::string SymbolName(AcDbObjectId idRecord);
