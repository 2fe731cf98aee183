#include "host/desktop/dialogs/dialog_face.h"

#include <QtWidgets/QTabBar>
#include <QtWidgets/QTabWidget>

#include "platform/mfc/data_exchange.h"
#include "platform/windows/message_box.h"
#include "tests/host/desktop/dialogs/placed_dialog_test.h"

using namespace TestDialog;

namespace {

using DialogFace = CPlacedDialogTest;

struct CFieldPage : CPropertyPage {
    CFieldPage(const char* caption, UINT nField)
        : CPropertyPage(0U)
        , m_nField(nField)
        , m_template{40,
                     "",
                     caption,
                     120,
                     60,
                     {{99, CControlKind::Label, "数(&N)", {10, 12, 40, 10}, 0},
                      {nField, CControlKind::Edit, "", {60, 10, 50, 12}, 0}}} {
        m_psp.dwFlags = PSP_DLGINDIRECT;
        m_psp.pResource = &m_template;
    }
    void DoDataExchange(CDataExchange* pDX) override { DDX_Text(pDX, m_nField, m_nValue); }

    UINT m_nField;
    CDialogTemplate m_template;
    int m_nValue = 5;
};

class SheetFace : public testing::Test {
protected:
    SheetFace() {
        m_sheet.AddPage(&m_first);
        m_sheet.AddPage(&m_second);
    }
    static QTabWidget& Tabs() { return *CUserHand::Window().findChild<QTabWidget*>(); }
    static void ClickTab(int nPage) {
        QTabBar* const pBar = Tabs().tabBar();
        QTest::mouseClick(pBar, Qt::LeftButton, {}, pBar->tabRect(nPage).center());
    }

    CFieldPage m_first{"一", 51}, m_second{"二", 52};
    CPropertySheet m_sheet{"页"};
};

} // namespace

TEST_F(DialogFace, TabGoesThroughTheControlsInTheirOrder) {
    Work([] {
        std::vector<UINT> arStops{CUserHand::Focused()};
        for (int i = 0; i < 20 && arStops.back() != 2; ++i) {
            CUserHand::Key(Qt::Key_Tab);
            if (CUserHand::Focused() != arStops.back())
                arStops.push_back(CUserHand::Focused()); // a date has parts
        }
        EXPECT_EQ(arStops, (std::vector<UINT>{ONE, SEVERAL, COMBO, EDIT, CHECK, RADIO_A, PUSH, DATE,
                                              READ_ONLY, ID_OK, ID_CANCEL}));
        CUserHand::Key(Qt::Key_Tab);
        EXPECT_EQ(CUserHand::Focused(), ONE);
    });
}

TEST_F(DialogFace, AMarkedRadioButtonStandsForItsGroupInTheTabOrder) {
    Work([] {
        CUserHand::Click(RADIO_B);
        CUserHand::TabTo(CHECK);
        CUserHand::Key(Qt::Key_Tab);
        EXPECT_EQ(CUserHand::Focused(), RADIO_B);
        CUserHand::Key(Qt::Key_Tab);
        EXPECT_EQ(CUserHand::Focused(), PUSH);
    });
}

TEST_F(DialogFace, NoControlStandsOutsideTheDialog) {
    Work([&] {
        const QRect window = CUserHand::Window().rect();
        for (const CWnd* pItem : m_dialog.GetItems()) {
            if (!pItem->IsWindowVisible()) continue;
            const QWidget& widget = CUserHand::Widget(pItem->GetDlgCtrlID());
            const QRect place(widget.mapTo(&CUserHand::Window(), QPoint(0, 0)), widget.size());
            EXPECT_TRUE(window.contains(place)) << pItem->GetDlgCtrlID();
        }
    });
}

TEST_F(SheetFace, ShowsItsPagesAsTabs) {
    EXPECT_EQ(WorkIn(m_sheet,
                     [&] {
                         EXPECT_EQ(Tabs().count(), 2);
                         EXPECT_EQ(Tabs().tabText(1), QStringLiteral("二"));
                         EXPECT_EQ(CUserHand::Focused(), 51U);
                         ClickTab(1);
                         EXPECT_EQ(m_sheet.GetActivePage(), &m_second);
                         EXPECT_EQ(DifferencesOnScreen(m_sheet), "");
                         CUserHand::Click(52);
                         CUserHand::Key(Qt::Key_End);
                         CUserHand::Type("0");
                         CUserHand::Key(Qt::Key_Return);
                     }),
              1);
    EXPECT_EQ(m_first.m_nValue, 5);
    EXPECT_EQ(m_second.m_nValue, 50);
}

TEST_F(SheetFace, StaysOnAPageWhoseTextIsRefused) {
    int nBoxes = 0;
    CMessageBoxHost host;
    host.m_show = [&](HWND, const std::wstring&, const std::wstring&, UINT) { return ++nBoxes, IDOK; };
    SetMessageBoxHost(host);
    WorkIn(m_sheet, [&] {
        CUserHand::Type("x");
        ClickTab(1);
        EXPECT_EQ(Tabs().currentIndex(), 0);
        EXPECT_EQ(m_sheet.GetActivePage(), &m_first);
        EXPECT_EQ(CUserHand::Focused(), 51U);
        CUserHand::Type("3");
        ClickTab(1);
        EXPECT_EQ(Tabs().currentIndex(), 1);
    });
    SetMessageBoxHost({});
    EXPECT_EQ(nBoxes, 1);
    EXPECT_EQ(m_first.m_nValue, 3);
}

TEST_F(SheetFace, IsWorkedByTheKeyboardAlone) {
    EXPECT_EQ(WorkIn(m_sheet,
                     [&] {
                         CUserHand::TabTo(ID_OK);
                         CUserHand::TabTo(ID_CANCEL);
                         CUserHand::Key(Qt::Key_Tab); // to the tabs
                         CUserHand::Key(Qt::Key_Right);
                         EXPECT_EQ(m_sheet.GetActivePage(), &m_second);
                         CUserHand::Key(Qt::Key_Tab);
                         EXPECT_EQ(CUserHand::Focused(), 52U);
                         CUserHand::Key(Qt::Key_Tab, Qt::ControlModifier);
                         EXPECT_EQ(m_sheet.GetActivePage(), &m_first);
                         CUserHand::Key(Qt::Key_N, Qt::AltModifier);
                         EXPECT_EQ(CUserHand::Focused(), 51U); // by the label before it
                         CUserHand::Key(Qt::Key_A, Qt::ControlModifier);
                         CUserHand::Type("9");
                         CUserHand::TabTo(ID_OK);
                         CUserHand::Key(Qt::Key_Space);
                     }),
              1);
    EXPECT_EQ(m_first.m_nValue, 9);
}
