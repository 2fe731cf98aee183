#include "platform/acad/db_xdata.h"

#include "platform/acad/db_polyline.h"
#include "platform/acad/host_application.h"
#include "platform/acad/memory_filer.h"
#include "platform/acad/result_buffer.h"
#include "tests/platform/acad/sample_entity.h"

#include <gtest/gtest.h>

namespace {

class XData : public testing::Test {
protected:
    XData() {
        acdbHostApplicationServices()->setWorkingDatabase(&m_database);
        EXPECT_EQ(acdbRegApp(L"NAME"), RTNORM);
        EXPECT_EQ(acdbRegApp(L"FL"), RTNORM);
    }
    ~XData() override { acdbHostApplicationServices()->setWorkingDatabase(nullptr); }

    Acad::ErrorStatus SetText(const ACHAR* app, const ACHAR* text) {
        CDbOpen<AcDbPolyline> line(m_id, AcDb::kForWrite);
        const CResbufChain chain(acutBuildList(1001, app, 1000, text, RTNONE));
        return line->setXData(chain.Get());
    }
    /// The second item of an application's chain; empty without one.
    std::wstring Text(const ACHAR* app) {
        CDbOpen<AcDbPolyline> line(m_id);
        const CResbufChain chain(line->xData(app));
        return chain && chain->rbnext ? chain->rbnext->resval.rstring : L"";
    }

    AcDbDatabase m_database;
    AcDbObjectId m_id = Append(m_database, new AcDbPolyline);
};

} // namespace

TEST_F(XData, ComesBackByApplicationInAnyCase) {
    EXPECT_EQ(SetText(L"NAME", L"图框"), Acad::eOk);
    EXPECT_EQ(Text(L"name"), L"图框");
    EXPECT_EQ(Text(L"FL"), L"");
}

TEST_F(XData, OfOneApplicationIsReplacedAndThatOfOthersStays) {
    SetText(L"NAME", L"a");
    SetText(L"FL", L"b");
    SetText(L"NAME", L"c");
    EXPECT_EQ(Text(L"NAME"), L"c");
    EXPECT_EQ(Text(L"FL"), L"b");
    CDbOpen<AcDbPolyline> line(m_id);
    EXPECT_EQ(line->XData().Apps().size(), 2U);
}

TEST_F(XData, WithoutValuesTakesTheApplicationAway) {
    SetText(L"NAME", L"a");
    CDbOpen<AcDbPolyline> line(m_id, AcDb::kForWrite);
    const CResbufChain chain(acutBuildList(1001, L"NAME", RTNONE));
    EXPECT_EQ(line->setXData(chain.Get()), Acad::eOk);
    EXPECT_EQ(line->xData(), nullptr);
}

TEST_F(XData, IsRefusedUnderANameThatIsNotRegistered) {
    EXPECT_EQ(SetText(L"NOBODY", L"a"), Acad::eRegappIdNotFound);
    CDbOpen<AcDbPolyline> line(m_id, AcDb::kForWrite);
    const CResbufChain nameless(acutBuildList(1000, L"a", RTNONE));
    EXPECT_EQ(line->setXData(nameless.Get()), Acad::eInvalidInput);
    const CResbufChain foreign(acutBuildList(1001, L"NAME", 40, 1.0, RTNONE));
    EXPECT_EQ(line->setXData(foreign.Get()), Acad::eInvalidInput);
    EXPECT_EQ(line->setXData(nullptr), Acad::eInvalidInput);
    EXPECT_EQ(line->xData(), nullptr);
}

TEST_F(XData, OfEveryKindIsFiledAndReadBack) {
    const ads_point point = {-3.4e36, 0.0, 1.0};
    AcDbPolyline source;
    const CResbufChain chain(acutBuildList(1001, L"NAME", 1000, L"文字", 1040, -3.4e36, 1010, point, 1070, 7,
                                           1071, Adesk::Int32{-1}, 1001, L"FL", 1071, Adesk::Int32{5},
                                           RTNONE));
    ASSERT_EQ(source.setXData(chain.Get()), Acad::eOk);
    const CDbRecord record = RecordOf(source, AcDb::kCopyFiler);
    AcDbPolyline copy;
    CRecordReader reader(AcDb::kCopyFiler, record);
    EXPECT_EQ(copy.dwgIn(&reader), Acad::eOk);
    EXPECT_EQ(RecordOf(copy, AcDb::kCopyFiler), record);
    const CResbufChain back(copy.xData(L"FL"));
    ASSERT_TRUE(back && back->rbnext);
    EXPECT_EQ(back->rbnext->resval.rlong, 5);
}

TEST(RegApp, NeedsADrawingAndANameAndRegistersOnce) {
    EXPECT_EQ(acdbRegApp(L"NAME"), RTERROR);
    AcDbDatabase database;
    acdbHostApplicationServices()->setWorkingDatabase(&database);
    EXPECT_EQ(acdbRegApp(L""), RTERROR);
    EXPECT_EQ(acdbRegApp(L"NAME"), RTNORM);
    EXPECT_EQ(acdbRegApp(L"Name"), RTNORM);
    const CDbOpen<AcDbRegAppTable> apps(database.regAppTableId());
    EXPECT_EQ(apps->RecordIds().size(), 2U) << "ACAD and NAME";
    acdbHostApplicationServices()->setWorkingDatabase(nullptr);
}
