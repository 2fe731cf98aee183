// The mouse in the real window.

#include "platform/acad/command_stack.h"
#include "platform/acad/db_line.h"
#include "platform/acad/editor.h"
#include "tests/host/desktop/desktop_user.h"

#include <gtest/gtest.h>

namespace {

/// The ends of the lines of the current drawing, in database order.
std::string Lines(const CDesktopUser& user) {
    std::string strLines;
    user.Do([&] {
        for (const CSceneItem& item : user.Desktop().Window().View().Document()->Scene().Items()) {
            const CDbOpen<AcDbLine> line(item.m_id);
            if (!line) continue;
            const AcGePoint3d from = line->startPoint(), to = line->endPoint();
            for (const double d : {from.x, from.y, to.x, to.y})
                strLines += std::to_string(std::lround(d)) + " ";
        }
    });
    return strLines;
}

/// The band that the cursor draws now.
std::optional<QLineF> Band(const CDesktopUser& user) {
    std::optional<QLineF> band;
    user.Do([&] { band = user.Desktop().Window().View().Mouse().Band(); });
    return band;
}

/// A module's command that asks for a point from another one, then for a point alone.
void BandedCommand() {
    const ads_point base = {30.0, 40.0, 0.0};
    ads_point point = {};
    acedGetPoint(base, L"Point from there: ", point);
    acedGetPoint(nullptr, L"Point alone: ", point);
}

} // namespace

TEST(DrawingView, ABandRunsFromTheBaseOfAMoveToTheCursor) {
    AtDesktop(NoInstallation(), [](const CDesktopUser& user) {
        user.Say("LINE 50,50 100,50");
        user.Click({80.0, 50.0});
        user.Say("MOVE");
        user.Move({10.0, 10.0});
        EXPECT_FALSE(Band(user));
        user.Say("60,70");
        user.Move({150.0, 120.0});
        const std::optional<QLineF> band = Band(user);
        ASSERT_TRUE(band);
        EXPECT_EQ(band->p1(), QPointF(60.0, 70.0));
        EXPECT_NEAR(band->x2(), 150.0, 1.0);
        user.Say("@10,0");
        EXPECT_EQ(Lines(user), "60 50 110 50 ");
    });
}

TEST(DrawingView, ABandRunsFromTheBaseThatAModuleGives) {
    acedRegCmds->addCommand(L"TEST", L"BANDED", L"BANDED", ACRX_CMD_MODAL, BandedCommand);
    AtDesktop(NoInstallation(), [](const CDesktopUser& user) {
        user.Say("BANDED");
        user.Move({90.0, 80.0});
        const std::optional<QLineF> band = Band(user);
        ASSERT_TRUE(band);
        EXPECT_EQ(band->p1(), QPointF(30.0, 40.0));
        EXPECT_NEAR(band->y2(), 80.0, 1.0);
        user.Say("1,1");
        EXPECT_EQ(user.Prompt(), "Point alone:");
        user.Move({90.0, 80.0});
        EXPECT_FALSE(Band(user));
    });
    acedRegCmds->removeGroup(L"TEST");
}

TEST(DrawingView, PointsOfACommandAreGivenByClicks) {
    AtDesktop(NoInstallation(), [](const CDesktopUser& user) {
        user.Say("line");
        EXPECT_EQ(user.Prompt(), "From point:");
        user.Click({100.0, 100.0});
        EXPECT_EQ(user.Prompt(), "To point:");
        user.Move({150.0, 120.0});
        user.Do([&] {
            const std::optional<QLineF> band = user.Desktop().Window().View().Mouse().Band();
            ASSERT_TRUE(band);
            EXPECT_NEAR(band->x1(), 100.0, 1.0);
            EXPECT_NEAR(band->y2(), 120.0, 1.0);
        });
        user.Click({200.0, 150.0});
        EXPECT_EQ(user.Prompt(), "Ready");
        EXPECT_EQ(Lines(user), "100 100 200 150 ");
    });
}

TEST(DrawingView, ClicksBoxesAndShiftSelectAndEscapeClears) {
    AtDesktop(NoInstallation(), [](const CDesktopUser& user) {
        user.Say("LINE 50,50 100,50");
        user.Say("LINE 50,100 100,100");
        user.Say("LINE 50,150 300,150");
        user.Click({62.0, 50.0});
        EXPECT_EQ(user.Selected(), 1);
        user.Click({62.0, 100.0});
        EXPECT_EQ(user.Selected(), 2);
        user.Click({62.0, 50.0}, Qt::LeftButton, Qt::ShiftModifier);
        EXPECT_EQ(user.Selected(), 1);
        user.Key(Qt::Key_Escape);
        EXPECT_EQ(user.Selected(), 0);
        user.Drag({30.0, 30.0}, {120.0, 170.0});
        EXPECT_EQ(user.Selected(), 2) << "from left to right: what lies in it";
        user.Key(Qt::Key_Escape);
        user.Click({120.0, 170.0});
        user.Move({80.0, 120.0});
        user.Click({60.0, 80.0});
        EXPECT_EQ(user.Selected(), 2) << "from right to left, by two clicks: what it meets";
    });
}

TEST(DrawingView, TheEntityUnderTheCursorIsShownAsSuch) {
    AtDesktop(NoInstallation(), [](const CDesktopUser& user) {
        user.Say("LINE 50,50 100,50");
        user.Move({75.0, 50.0});
        user.Do([&] { EXPECT_FALSE(user.Desktop().Window().View().Mouse().Hovered().isNull()); });
        user.Move({75.0, 90.0});
        user.Do([&] { EXPECT_TRUE(user.Desktop().Window().View().Mouse().Hovered().isNull()); });
    });
}

TEST(DrawingView, ASelectionAnswersTheEditingCommandThatFollows) {
    AtDesktop(NoInstallation(), [](const CDesktopUser& user) {
        user.Say("LINE 50,50 100,50");
        user.Say("LINE 50,100 100,100");
        user.Click({75.0, 50.0});
        user.Menu("Erase");
        EXPECT_EQ(Lines(user), "50 100 100 100 ");
        user.Say("COPY");
        user.Click({75.0, 100.0});
        user.Click({0.0, 0.0}, Qt::RightButton);
        user.Say("0,0");
        user.Say("10,20");
        EXPECT_EQ(Lines(user), "50 100 100 100 60 120 110 120 ");
    });
}

TEST(DrawingView, ABoxAnswersASelectionWithAllThatItTakes) {
    AtDesktop(NoInstallation(), [](const CDesktopUser& user) {
        user.Say("LINE 50,50 100,50");
        user.Say("LINE 50,100 100,100");
        user.Say("LINE 250,100 300,100");
        user.Say("ERASE");
        user.Drag({30.0, 30.0}, {120.0, 120.0});
        user.Key(Qt::Key_Return);
        EXPECT_EQ(Lines(user), "250 100 300 100 ");
        user.Say("UNDO 1");
        EXPECT_EQ(user.Shown(), 3U);
        user.Key(Qt::Key_Y, Qt::ControlModifier);
        EXPECT_EQ(user.Shown(), 1U);
    });
}

TEST(DrawingView, AGripIsDraggedByPressAndReleaseByTwoClicksOrATypedPoint) {
    AtDesktop(NoInstallation(), [](const CDesktopUser& user) {
        user.Say("LINE 50,50 100,50");
        user.Click({80.0, 50.0});
        user.Drag({100.0, 50.0}, {150.0, 80.0});
        EXPECT_EQ(Lines(user), "50 50 150 80 ");
        user.Click({150.0, 80.0});
        user.Move({160.0, 90.0});
        user.Do([&] { EXPECT_TRUE(user.Desktop().Window().View().Mouse().Dragged()); });
        user.Click({200.0, 100.0});
        EXPECT_EQ(Lines(user), "50 50 200 100 ");
        user.Click({50.0, 50.0});
        user.Say("@-20,10");
        EXPECT_EQ(Lines(user), "30 60 200 100 ");
        user.Click({30.0, 60.0});
        user.Key(Qt::Key_Escape);
        EXPECT_EQ(user.Selected(), 1) << "Escape gives up the drag alone";
        EXPECT_EQ(Lines(user), "30 60 200 100 ");
    });
}

TEST(DrawingView, AnotherSelectionEndsTheDragOfAGripAndItsPicture) {
    AtDesktop(NoInstallation(), [](const CDesktopUser& user) {
        user.Say("LINE 50,50 100,50");
        user.Click({80.0, 50.0});
        user.Click({100.0, 50.0});
        user.Move({120.0, 80.0});
        user.Menu("Select all");
        user.Do([&] { EXPECT_FALSE(user.Desktop().Window().View().Mouse().Dragged()); });
        EXPECT_FALSE(Band(user));
        user.Click({200.0, 100.0});
        EXPECT_EQ(Lines(user), "50 50 100 50 ");
    });
}

TEST(DrawingView, ACommandGivesUpTheDragOfAGripAndGetsTheNextClick) {
    AtDesktop(NoInstallation(), [](const CDesktopUser& user) {
        user.Say("LINE 50,50 100,50");
        user.Click({80.0, 50.0});
        user.Click({100.0, 50.0});
        user.Say("LINE 150,100");
        user.Click({200.0, 100.0});
        EXPECT_EQ(Lines(user), "50 50 100 50 150 100 200 100 ") << user.Said();
    });
}

TEST(DrawingView, GripsMadeHotWithShiftMoveTogether) {
    AtDesktop(NoInstallation(), [](const CDesktopUser& user) {
        user.Say("LINE 50,50 100,50");
        user.Click({70.0, 50.0});
        user.Click({50.0, 50.0}, Qt::LeftButton, Qt::ShiftModifier);
        user.Click({100.0, 50.0}, Qt::LeftButton, Qt::ShiftModifier);
        user.Click({100.0, 50.0});
        user.Say("@10,20");
        EXPECT_EQ(Lines(user), "60 70 110 70 ");
    });
}

TEST(DrawingView, TheWheelZoomsAtTheCursorAndTheMiddleButtonPans) {
    AtDesktop(NoInstallation(), [](const CDesktopUser& user) {
        CDrawingView& view = user.Desktop().Window().View();
        const QPointF at(100.0, 100.0);
        QPointF before;
        user.Do([&] { before = view.ToWidget(at); });
        user.Wheel(at, 2);
        user.Do([&] {
            EXPECT_NEAR(view.ToWidget(at).x(), before.x(), 1e-6);
            EXPECT_NEAR(view.ToWidget(at).y(), before.y(), 1e-6);
            const QPointF step = view.ToWidget({101.0, 100.0}) - before;
            EXPECT_GT(step.x(), 1.5 * view.height() / 297.0);
        });
        user.Drag(at, at + QPointF(20.0, -10.0), Qt::MiddleButton);
        user.Do([&] {
            EXPECT_NEAR(view.ToWidget(at - QPointF(20.0, -10.0)).x(), before.x(), 200.0);
            EXPECT_GT(view.ToWidget(at).x(), before.x());
            EXPECT_GT(view.ToWidget(at).y(), before.y());
        });
    });
}

TEST(DrawingView, ZoomExtentsShowsAllByMenuAndByCommand) {
    AtDesktop(NoInstallation(), [](const CDesktopUser& user) {
        CDrawingView& view = user.Desktop().Window().View();
        user.Say("LINE 5000,7000 6000,7500");
        const auto isShown = [&] {
            return QRectF(view.rect())
                .contains(QRectF(view.ToWidget({5000.0, 7500.0}), view.ToWidget({6000.0, 7000.0})));
        };
        user.Do([&] { EXPECT_FALSE(isShown()); });
        user.Menu("Zoom extents");
        user.Do([&] { EXPECT_TRUE(isShown()); });
        user.Wheel({5500.0, 7200.0}, 20);
        user.Do([&] { EXPECT_FALSE(isShown()); });
        user.Say("ZOOM e");
        user.Do([&] { EXPECT_TRUE(isShown()); });
    });
}
