#include "platform/acad/db_dictionary.h"

#include "platform/acad/db_database.h"
#include "platform/acad/memory_filer.h"

#include <gtest/gtest.h>

namespace {

class DbDictionary : public testing::Test {
protected:
    CDbOpen<AcDbDictionary> Named(AcDb::OpenMode mode = AcDb::kForRead) {
        return CDbOpen<AcDbDictionary>(m_database.namedObjectsDictionaryId(), mode);
    }
    /// Puts a dictionary under the name and closes it.
    AcDbObjectId Put(const ACHAR* name) {
        const CDbOpen<AcDbDictionary> named = Named(AcDb::kForWrite);
        AcDbObjectId id;
        auto* const pInner = new AcDbDictionary;
        EXPECT_EQ(named->setAt(name, pInner, id), Acad::eOk);
        pInner->close();
        return id;
    }
    std::wstring Names() {
        std::wstring strNames;
        for (const auto& [strName, id] : Named()->Entries())
            strNames += strName + L" ";
        return strNames;
    }

    AcDbDatabase m_database;
};

} // namespace

TEST_F(DbDictionary, OfNamedObjectsIsEmptyInANewDrawing) {
    AcDbDictionary* pNamed = nullptr;
    ASSERT_EQ(m_database.getNamedObjectsDictionary(pNamed, AcDb::kForRead), Acad::eOk);
    EXPECT_EQ(pNamed->numEntries(), 0U);
    EXPECT_FALSE(pNamed->isTreatElementsAsHard());
    pNamed->close();
}

TEST_F(DbDictionary, FindsItsObjectsWithoutCaseAndKeepsTheNameGiven) {
    const AcDbObjectId id = Put(L"Acad_Group");
    const CDbOpen<AcDbDictionary> named = Named();
    AcDbObjectId idFound;
    EXPECT_EQ(named->getAt(L"ACAD_GROUP", idFound), Acad::eOk);
    EXPECT_EQ(idFound, id);
    std::wstring strName;
    EXPECT_EQ(named->nameAt(id, strName), Acad::eOk);
    EXPECT_EQ(strName, L"Acad_Group");
    EXPECT_TRUE(named->has(L"acad_group"));
    EXPECT_TRUE(named->has(id));
    EXPECT_FALSE(named->has(L"acad"));
    EXPECT_FALSE(named->has(nullptr));
    EXPECT_EQ(named->getAt(L"other", idFound), Acad::eKeyNotFound);
    EXPECT_EQ(idFound, id);
    EXPECT_EQ(named->nameAt(m_database.clayer(), strName), Acad::eKeyNotFound);
    AcDbDictionary* pInner = nullptr;
    ASSERT_EQ(named->getAt(L"Acad_Group", pInner, AcDb::kForRead), Acad::eOk);
    EXPECT_EQ(pInner->ownerId(), m_database.namedObjectsDictionaryId());
    pInner->close();
}

TEST_F(DbDictionary, ListsItsEntriesByName) {
    Put(L"beta");
    Put(L"Gamma");
    Put(L"ALPHA");
    EXPECT_EQ(Names(), L"ALPHA beta Gamma ");
}

TEST_F(DbDictionary, ErasesTheObjectThatANewOneReplaces) {
    const AcDbObjectId idFormer = Put(L"a"), idNew = Put(L"A");
    EXPECT_TRUE(idFormer.isErased());
    AcDbObjectId id;
    EXPECT_EQ(Named()->getAt(L"a", id), Acad::eOk);
    EXPECT_EQ(id, idNew);
    EXPECT_EQ(Named()->numEntries(), 1U);
}

TEST_F(DbDictionary, KeepsTheFormerObjectWhileItIsOpen) {
    const AcDbObjectId idFormer = Put(L"a");
    const CDbOpen<AcDbDictionary> reader(idFormer);
    AcDbDictionary free;
    AcDbObjectId id;
    EXPECT_EQ(Named(AcDb::kForWrite)->setAt(L"a", &free, id), Acad::eWasOpenForRead);
    EXPECT_TRUE(Named()->has(idFormer));
}

TEST_F(DbDictionary, RefusesWhatItCannotHold) {
    AcDbDictionary free, other;
    AcDbObjectId id;
    EXPECT_EQ(free.setAt(L"a", &other, id), Acad::eNoDatabase);
    const CDbOpen<AcDbDictionary> named = Named(AcDb::kForWrite);
    EXPECT_EQ(named->setAt(L"", &free, id), Acad::eInvalidInput);
    EXPECT_EQ(named->setAt(nullptr, &free, id), Acad::eInvalidInput);
    EXPECT_EQ(named->setAt(L"a", nullptr, id), Acad::eNullObjectPointer);
    EXPECT_EQ(named->setAt(L"a", named.Get(), id), Acad::eAlreadyInDb);
    EXPECT_EQ(named->numEntries(), 0U);
}

TEST_F(DbDictionary, RemovesEntriesByNameAndByObjectAndLeavesTheObjects) {
    const AcDbObjectId idA = Put(L"a"), idB = Put(L"b");
    const CDbOpen<AcDbDictionary> named = Named(AcDb::kForWrite);
    AcDbObjectId idRemoved;
    EXPECT_EQ(named->remove(L"A", idRemoved), Acad::eOk);
    EXPECT_EQ(idRemoved, idA);
    EXPECT_EQ(named->remove(L"A"), Acad::eKeyNotFound);
    EXPECT_EQ(named->remove(idB), Acad::eOk);
    EXPECT_EQ(named->remove(idB), Acad::eKeyNotFound);
    EXPECT_EQ(named->numEntries(), 0U);
    EXPECT_FALSE(idA.isErased());
    EXPECT_FALSE(idB.isErased());
}

TEST_F(DbDictionary, HasNoEntryForAnErasedObject) {
    const AcDbObjectId id = Put(L"a");
    CDbOpen<AcDbDictionary>(id, AcDb::kForWrite)->erase();
    EXPECT_FALSE(Named()->has(L"a"));
    EXPECT_FALSE(Named()->has(id));
    EXPECT_EQ(Named()->numEntries(), 0U);
}

TEST_F(DbDictionary, UndoesAndRedoesItsEntries) {
    const AcDbObjectId idFirst = Put(L"a");
    m_database.UndoLog().BeginStep();
    const AcDbObjectId idSecond = Put(L"a");
    Put(L"b");
    m_database.UndoLog().Undo(1);
    EXPECT_EQ(Names(), L"a ");
    EXPECT_TRUE(Named()->has(idFirst));
    m_database.UndoLog().Redo(1);
    EXPECT_EQ(Names(), L"a b ");
    EXPECT_TRUE(Named()->has(idSecond));
    EXPECT_TRUE(idFirst.isErased());
}

TEST_F(DbDictionary, FilesItsObjectsAsOwnedSoftOrHard) {
    const AcDbObjectId id = Put(L"a");
    const CDbOpen<AcDbDictionary> named = Named(AcDb::kForWrite);
    ASSERT_EQ(RecordOf(*named.Get(), AcDb::kCopyFiler).m_arIds.size(), 1U);
    EXPECT_EQ(RecordOf(*named.Get(), AcDb::kCopyFiler).m_arIds[0],
              (CFiledId{CFiledId::CKind::SoftOwnership, id}));
    named->setTreatElementsAsHard(Adesk::kTrue);
    const CDbRecord record = RecordOf(*named.Get(), AcDb::kCopyFiler);
    EXPECT_EQ(record.m_arIds[0], (CFiledId{CFiledId::CKind::HardOwnership, id}));
    AcDbDictionary copy;
    CRecordReader reader(AcDb::kCopyFiler, record);
    EXPECT_EQ(copy.dwgIn(&reader), Acad::eOk);
    EXPECT_TRUE(copy.isTreatElementsAsHard());
    EXPECT_TRUE(copy.has(id));
}
