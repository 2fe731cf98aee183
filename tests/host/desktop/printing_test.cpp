// Printing and its preview from the menu, on a printer that is a PDF file.

#include "tests/host/desktop/desktop_user.h"
#include "tests/support/programs.h"

#include "host/console/progress.h"

#include <QtPrintSupport/QPrintDialog>
#include <QtPrintSupport/QPrintPreviewDialog>
#include <QtPrintSupport/QPrintPreviewWidget>
#include <QtPrintSupport/QPrinter>
#include <QtTest/QtTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QDialogButtonBox>
#include <QtWidgets/QPushButton>

#include <gtest/gtest.h>

namespace {

std::string Group(int nCode, const std::string& strValue) {
    return std::to_string(nCode) + "\n" + strValue + "\n";
}

std::string Line(double dToX, double dToY) {
    return Group(0, "LINE") + Group(8, "0") + Group(10, "0") + Group(20, "0") +
           Group(11, std::to_string(dToX)) + Group(21, std::to_string(dToY));
}

std::string Sheet(int nX, const std::string& strScale) {
    return Group(0, "INSERT") + Group(8, "0") + Group(2, "BRMB") + Group(10, std::to_string(nX)) +
           Group(20, "0") + Group(41, strScale) + Group(42, strScale) + Group(0, "TEXT") + Group(8, "0") +
           Group(10, std::to_string(nX + 50)) + Group(20, "50") + Group(40, "10") +
           Group(1, "at" + std::to_string(nX));
}

/// A drawing of two sheets of A3 and one of A5, lying, each with a text, in a folder of its own; the first
/// one in another scale, if one is given.
class CSheets {
public:
    explicit CSheets(const std::string& strFirst = "1") {
        m_folder.Write("sheets.dxf", Group(0, "SECTION") + Group(2, "BLOCKS") + Group(0, "BLOCK") +
                                         Group(2, "BRMB") + Group(10, "0") + Group(20, "0") +
                                         Line(420.0, 297.0) + Group(0, "ENDBLK") + Group(0, "ENDSEC") +
                                         Group(0, "SECTION") + Group(2, "ENTITIES") + Sheet(0, strFirst) +
                                         Sheet(500, "1") + Sheet(1000, "0.5") + Group(0, "ENDSEC") +
                                         Group(0, "EOF"));
    }
    CDesktopStart Start() const { return {"/nowhere", "none", m_folder.Path("sheets.dxf")}; }
    std::string Folder() const { return m_folder.Path(); }
    std::string Pdf() const { return m_folder.Path("printed.pdf"); }
    /// What a program of Poppler's says of the file printed.
    std::string Poppler(const std::string& strProgram) const {
        const std::string strOut = m_folder.Path("out");
        EXPECT_EQ(std::system((strProgram + " '" + Pdf() + "' - > '" + strOut + "'").c_str()), 0);
        return m_folder.Read("out");
    }
    std::string Info() const {
        const std::string strOut = m_folder.Path("out");
        EXPECT_EQ(std::system(("pdfinfo -l 3 '" + Pdf() + "' > '" + strOut + "'").c_str()), 0);
        return m_folder.Read("out");
    }

private:
    const CTempFolder m_folder;
};

/// Chooses in the print dialog that is open to print into a file.
void PrintTo(const CDesktopUser& user, const std::string& strPath) {
    user.Act([&] {
        auto* const pDialog = qobject_cast<QPrintDialog*>(QApplication::activeModalWidget());
        ASSERT_TRUE(pDialog);
        pDialog->printer()->setOutputFileName(QString::fromStdString(strPath));
        auto* const pFile = pDialog->findChild<QLineEdit*>(u"filename"_qs);
        ASSERT_TRUE(pFile);
        pFile->setText(QString::fromStdString(strPath));
        pDialog->findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok)->click();
    });
}

} // namespace

TEST(Printing, APageForEachSheetOfTheSheetsSizeInTheirOrder) {
    const CSheets sheets;
    AtDesktop(sheets.Start(), [&](const CDesktopUser& user) {
        user.Menu("Print...");
        PrintTo(user, sheets.Pdf());
    });
    const std::string strInfo = sheets.Info(), strText = sheets.Poppler("pdftotext");
    EXPECT_NE(strInfo.find("Pages:           3"), std::string::npos) << strInfo;
    for (const char* const szPage : {"1 size:  1191 x 842", "2 size:  1191 x 842", "3 size:  595 x 420"})
        EXPECT_NE(strInfo.find(std::string("Page    ") + szPage + " pts"), std::string::npos) << strInfo;
    EXPECT_LT(strText.find("at0"), strText.find("at500")) << strText;
    EXPECT_LT(strText.find("at500"), strText.find("at1000")) << strText;
}

TEST(Printing, EscapeInThePrintersDialogPrintsNothing) {
    const CSheets sheets;
    AtDesktop(sheets.Start(), [&](const CDesktopUser& user) {
        user.Menu("Print...");
        user.Act([] { QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_Escape); });
        EXPECT_EQ(user.Prompt(), "Ready");
    });
    EXPECT_FALSE(std::filesystem::exists(sheets.Pdf()));
}

TEST(Printing, GivenUpItLeavesNoFile) {
    const CSheets sheets;
    AtDesktop(sheets.Start(), [&](const CDesktopUser& user) {
        std::string strAsked;
        user.Do([&] {
            SetProgressSink([&](const std::string& strWork, std::size_t nDone, std::size_t nAll) {
                strAsked += strWork + " " + std::to_string(nDone) + "/" + std::to_string(nAll) + " ";
                return nDone < 2;
            });
        });
        user.Menu("Print...");
        PrintTo(user, sheets.Pdf());
        user.Do([&] { EXPECT_EQ(strAsked.substr(0, 39), "Printing 0/3 Printing 1/3 Printing 2/3 "); });
        user.Do([] { SetProgressSink({}); });
    });
    EXPECT_FALSE(std::filesystem::exists(sheets.Pdf()));
}

TEST(Printing, APrinterThatDoesNotTakeThePagesIsTold) {
    const CSheets sheets;
    const std::string strGone = sheets.Folder() + "/gone";
    std::filesystem::create_directory(strGone);
    AtDesktop(sheets.Start(), [&](const CDesktopUser& user) {
        user.Do([&] {
            SetProgressSink([&](const std::string&, std::size_t, std::size_t) {
                std::filesystem::remove_all(strGone); // after the dialog has looked whether it can be written
                return true;
            });
        });
        user.Menu("Print...");
        PrintTo(user, strGone + "/printed.pdf");
        EXPECT_NE(user.Said().find("cannot print to " + strGone + "/printed.pdf"), std::string::npos)
            << user.Said();
        user.Do([] { SetProgressSink({}); });
    });
}

TEST(Printing, ThePreviewHasThePagesAndEscapeClosesIt) {
    const CSheets sheets;
    AtDesktop(sheets.Start(), [&](const CDesktopUser& user) {
        user.Menu("Print preview...");
        user.Act([] {
            QWidget* const pDialog = QApplication::activeModalWidget();
            ASSERT_TRUE(pDialog);
            const auto* const pPreview = pDialog->findChild<QPrintPreviewWidget*>();
            ASSERT_TRUE(pPreview);
            EXPECT_EQ(pPreview->pageCount(), 3);
            EXPECT_EQ(pPreview->orientation(), QPageLayout::Landscape);
            QTest::keyClick(pDialog, Qt::Key_Escape);
        });
        user.Do([] { EXPECT_EQ(QApplication::activeModalWidget(), nullptr); });
        EXPECT_EQ(user.Prompt(), "Ready");
    });
}

TEST(Printing, ThePreviewsPaperHasRoomForALargerSheetThanTheFirst) {
    const CSheets sheets("0.5");
    AtDesktop(sheets.Start(), [&](const CDesktopUser& user) {
        user.Menu("Print preview...");
        user.Act([] {
            auto* const pDialog = qobject_cast<QPrintPreviewDialog*>(QApplication::activeModalWidget());
            ASSERT_TRUE(pDialog);
            const QPageLayout paper = pDialog->printer()->pageLayout();
            EXPECT_EQ(paper.pageSize().id(), QPageSize::A3);
            EXPECT_EQ(paper.orientation(), QPageLayout::Landscape);
            QTest::keyClick(pDialog, Qt::Key_Escape);
        });
    });
}
