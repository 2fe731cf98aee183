#include "tests/host/desktop/desktop_user.h"

#include "host/console/redraw.h"
#include "platform/acad/db_line.h"

#include <gtest/gtest.h>

namespace {

std::size_t Grips(const CDesktopUser& user) {
    std::size_t nGrips = 0;
    user.Do([&] { nGrips = user.Desktop().Window().View().Document()->Grips().All().size(); });
    return nGrips;
}

} // namespace

TEST(DocumentView, AHundredSelectedEntitiesHaveGripsAndMoreHaveNone) {
    AtDesktop({"/nowhere"}, [](const CDesktopUser& user) {
        for (int i = 0; i < 100; ++i)
            user.Say("LINE 0," + std::to_string(i) + " 100," + std::to_string(i));
        user.Key(Qt::Key_A, Qt::ControlModifier);
        EXPECT_EQ(user.Selected(), 100);
        const std::size_t nGrips = Grips(user);
        EXPECT_GT(nGrips, 0U);
        EXPECT_EQ(nGrips % 100, 0U);
        user.Say("LINE 0,200 100,200");
        user.Key(Qt::Key_A, Qt::ControlModifier);
        EXPECT_EQ(user.Selected(), 101);
        EXPECT_EQ(Grips(user), 0U);
    });
}

TEST(DocumentView, WhatACommandErasesIsNoLongerSelectedAndTheRestIs) {
    AtDesktop({"/nowhere"}, [](const CDesktopUser& user) {
        for (const char* const szLine : {"LINE 0,0 100,0", "LINE 0,50 100,50", "LINE 0,90 100,90"})
            user.Say(szLine);
        user.Key(Qt::Key_A, Qt::ControlModifier);
        user.Say("ERASE 50,50");
        EXPECT_EQ(user.Selected(), 2);
        user.Key(Qt::Key_Delete);
        EXPECT_EQ(user.Shown(), 0U);
        EXPECT_EQ(user.Selected(), 0);
    });
}

TEST(DocumentView, IsPaintedAsBeforeWhenACommandHasClosedItsDrawing) {
    StartTestQt();
    CFonts fonts{{}};
    auto pDocument = std::make_unique<AcApDocument>(std::make_unique<AcDbDatabase>(), L"Drawing1");
    auto* const pLine = new AcDbLine({10.0, 10.0, 0.0}, {300.0, 200.0, 0.0});
    AcDbObjectId id;
    ASSERT_EQ(CDbOpen<AcDbBlockTableRecord>(pDocument->database()->ModelSpaceId(), AcDb::kForWrite)
                  ->appendAcDbEntity(id, pLine),
              Acad::eOk);
    pLine->close();
    DrawAll(*pDocument->database());
    CDocumentView document(*pDocument, fonts);
    CDrawingView view({});
    view.Show(&document);
    view.Refresh();
    view.SelectAll();
    const QImage before = view.grab().toImage();
    pDocument.reset();
    view.SetColors(DarkColors()); // all is painted anew
    EXPECT_EQ(view.grab().toImage(), before);
}
