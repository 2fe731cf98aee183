#include "platform/acad/ap_document.h"

#include "platform/acad/host_application.h"
#include "platform/acad/selection.h"
#include "tests/platform/acad/sample_entity.h"

#include <gtest/gtest.h>

TEST(ApDocument, IsNamedByItsFileElseByItsTitle) {
    const AcApDocument document(std::make_unique<AcDbDatabase>(), L"Drawing1");
    EXPECT_FALSE(document.isNamedDrawing());
    EXPECT_STREQ(document.fileName(), L"Drawing1");
    EXPECT_STREQ(document.docTitle(), L"Drawing1");
    document.database()->SetFilename(L"/图/室内曲线/BRK1-2.dwg");
    EXPECT_TRUE(document.isNamedDrawing());
    EXPECT_STREQ(document.fileName(), L"/图/室内曲线/BRK1-2.dwg");
    EXPECT_STREQ(document.docTitle(), L"BRK1-2.dwg");
}

TEST(ApDocument, LocksAreHeldUntilUnlocked) {
    AcApDocument document(std::make_unique<AcDbDatabase>(), L"Drawing1");
    EXPECT_EQ(document.lockMode(), AcAp::kNotLocked);
    EXPECT_EQ(document.Unlock(), Acad::eLockViolation);
    EXPECT_EQ(document.Lock(AcAp::kRead), Acad::eOk);
    EXPECT_EQ(document.Lock(AcAp::kWrite), Acad::eOk);
    EXPECT_EQ(document.lockMode(), AcAp::kWrite);
    EXPECT_EQ(document.Unlock(), Acad::eOk);
    EXPECT_EQ(document.lockMode(), AcAp::kRead);
    EXPECT_EQ(document.Unlock(), Acad::eOk);
    EXPECT_EQ(document.lockMode(), AcAp::kNotLocked);
}

TEST(ApDocument, AnExclusiveLockStandsAlone) {
    AcApDocument document(std::make_unique<AcDbDatabase>(), L"Drawing1");
    EXPECT_EQ(document.Lock(AcAp::kXWrite), Acad::eOk);
    EXPECT_EQ(document.Lock(AcAp::kRead), Acad::eLockViolation);
    document.Unlock();
    document.Lock(AcAp::kRead);
    EXPECT_EQ(document.Lock(AcAp::kXWrite), Acad::eLockViolation);
}

TEST(ApDocument, AModeThatLocksNothingIsRefused) {
    AcApDocument document(std::make_unique<AcDbDatabase>(), L"Drawing1");
    EXPECT_EQ(document.Lock(AcAp::kNone), Acad::eInvalidInput);
    EXPECT_EQ(document.Lock(AcAp::kNotLocked), Acad::eInvalidInput);
}

TEST(ApDocument, TakesItsSelectionsAlong) {
    ads_name ss;
    {
        const AcApDocument document(std::make_unique<AcDbDatabase>(), L"Drawing1");
        acdbHostApplicationServices()->setWorkingDatabase(document.database());
        Append(*document.database(), new CSampleEntity);
        ASSERT_EQ(acedSSGet(L"X", nullptr, nullptr, nullptr, ss), RTNORM);
    }
    EXPECT_EQ(acedSSFree(ss), RTERROR);
}
