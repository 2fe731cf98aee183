// AcDbDatabase::readDwgFile and saveAs.

#include "platform/acad/db_line.h"
#include "platform/acad/host_application.h"
#include "platform/windows/code_page.h"
#include "platform/windows/path.h"
#include "tests/platform/acad/block_sample.h"
#include "tests/support/documents.h"
#include "tests/temp_folder.h"

#include <gtest/gtest.h>

namespace {

/// Files that are kept in mind: one drawing with a line, whatever the path, and what was written last.
class CFakeFiles final : public CDrawingFileHost {
public:
    CFakeFiles() { SetDrawingFileHost(this); }
    ~CFakeFiles() override { SetDrawingFileHost(nullptr); }
    CFakeFiles(const CFakeFiles&) = delete;
    CFakeFiles& operator=(const CFakeFiles&) = delete;

    Acad::ErrorStatus Read(const std::string& utf8Path, std::unique_ptr<AcDbDatabase>* pDatabase) override {
        m_strRead = utf8Path;
        if (m_status != Acad::eOk) return m_status;
        *pDatabase = std::make_unique<AcDbDatabase>();
        Append(**pDatabase, new AcDbLine({1, 0, 0}, {2, 0, 0}));
        (*pDatabase)->setLtscale(4.0);
        (*pDatabase)->SetView({{1.0, 2.0}, 3.0});
        return Acad::eOk;
    }
    Acad::ErrorStatus Write(const AcDbDatabase& database, const std::string& utf8Path) override {
        m_pWritten = &database;
        m_strWritten = utf8Path;
        return m_status;
    }

    Acad::ErrorStatus m_status = Acad::eOk;
    std::string m_strRead, m_strWritten;
    const AcDbDatabase* m_pWritten = nullptr;
};

} // namespace

TEST(ReadDwgFile, FillsADrawingThatWasMadeWithoutTheDefaultOne) {
    CFakeFiles files;
    AcDbDatabase database(false);
    EXPECT_TRUE(database.ObjectIds().empty());
    ASSERT_EQ(database.readDwgFile(L"\\none\\室内.dwg"), Acad::eOk);
    EXPECT_EQ(files.m_strRead, "/none/\xE5\xAE\xA4\xE5\x86\x85.dwg");
    std::wstring strName;
    database.getFilename(strName);
    EXPECT_EQ(strName, L"\\none\\室内.dwg");
    EXPECT_EQ(database.ltscale(), 4.0);
    EXPECT_EQ(database.View().m_dHeight, 3.0);
    for (const AcDbObjectId& id : database.ObjectIds())
        EXPECT_EQ(id.database(), &database);
    const std::vector<AcDbObjectId> ids = CDbOpen<AcDbBlockTableRecord>(database.ModelSpaceId())->EntityIds();
    ASSERT_EQ(ids.size(), 1U);
    EXPECT_EQ(database.TakeChangedEntities(), ids);
    Append(database, new AcDbLine({0, 0, 0}, {2, 0, 0})); // it goes on as any other
    EXPECT_EQ(CDbOpen<AcDbBlockTableRecord>(database.ModelSpaceId())->EntityIds().size(), 2U);
    AcDbDatabase* pCopy = nullptr;
    EXPECT_EQ(database.wblock(pCopy), Acad::eOk);
    delete pCopy;
}

TEST(ReadDwgFile, LeavesADrawingThatCannotBeFilledAsItWas) {
    CFakeFiles files;
    AcDbDatabase full, empty(false);
    EXPECT_EQ(full.readDwgFile(L"a.dwg"), Acad::eNotApplicable);
    EXPECT_EQ(files.m_strRead, "");
    EXPECT_EQ(empty.readDwgFile(nullptr), Acad::eInvalidInput);
    EXPECT_EQ(empty.readDwgFile(L""), Acad::eInvalidInput);
    files.m_status = Acad::eFileNotFound;
    EXPECT_EQ(empty.readDwgFile(L"a.dwg"), Acad::eFileNotFound);
    EXPECT_TRUE(empty.ObjectIds().empty());
    std::wstring strName;
    empty.getFilename(strName);
    EXPECT_EQ(strName, L"");
}

TEST(ReadDwgFile, RefusesTheFileOfAnOpenDocumentWhereItDeniesOthersToWrite) {
    const CTempFolder folder;
    const std::wstring strFile = WideFromGbk(folder.Write("a.dwg", "")),
                       strOther = WideFromGbk(folder.Write("b.dwg", ""));
    CFakeFiles files;
    CTestDocuments documents;
    documents.Add(L"new"); // without a file
    documents.Add(L"a").database()->SetFilename(strFile.c_str());
    AcDbDatabase refused(false), shared(false), other(false);
    EXPECT_EQ(refused.readDwgFile(WideFromGbk(folder.Path("A.DWG")).c_str()), Acad::eFileAccessErr);
    EXPECT_TRUE(refused.ObjectIds().empty());
    EXPECT_EQ(shared.readDwgFile(strFile.c_str(), 0x40), Acad::eOk);
    EXPECT_EQ(other.readDwgFile(strOther.c_str()), Acad::eOk);
}

TEST(ReadDwgFile, WhatHoldsNothingGivesNoCopy) {
    AcDbDatabase empty(false), target;
    AcDbDatabase* pCopy = &empty;
    EXPECT_EQ(empty.wblock(pCopy), Acad::eNoDatabase);
    EXPECT_EQ(pCopy, nullptr);
    AcDbObjectId idBlock;
    EXPECT_EQ(target.insert(idBlock, L"BRMB", pCopy), Acad::eNullObjectPointer);
    EXPECT_EQ(target.insert(idBlock, L"BRMB", &empty), Acad::eNoDatabase);
    EXPECT_EQ(target.insert(AcGeMatrix3d(), &empty), Acad::eNoDatabase);
    EXPECT_FALSE(CDbOpen<AcDbBlockTable>(target.blockTableId())->has(L"BRMB"));
}

TEST(SaveAs, WritesUnderThePathAndTheDrawingKeepsItsName) {
    CFakeFiles files;
    AcDbDatabase database;
    database.SetFilename(L"/own.dwg");
    EXPECT_EQ(database.saveAs(L"\\none\\a.dwg"), Acad::eOk);
    EXPECT_EQ(files.m_strWritten, "/none/a.dwg");
    EXPECT_EQ(files.m_pWritten, &database);
    std::wstring strName;
    database.getFilename(strName);
    EXPECT_EQ(strName, L"/own.dwg");
    files.m_status = Acad::eFileAccessErr;
    EXPECT_EQ(database.saveAs(L"a.dwg"), Acad::eFileAccessErr);
    EXPECT_EQ(database.saveAs(nullptr), Acad::eInvalidInput);
}

TEST(SaveAs, IsNotApplicableWithoutAHostAndNeitherIsReading) {
    AcDbDatabase database, empty(false);
    EXPECT_EQ(database.saveAs(L"a.dwg"), Acad::eNotApplicable);
    EXPECT_EQ(empty.readDwgFile(L"a.dwg"), Acad::eNotApplicable);
}
