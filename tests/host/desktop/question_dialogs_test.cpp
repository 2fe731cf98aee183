#include "host/desktop/question_dialogs.h"

#include "tests/host/desktop/desktop_user.h"
#include "tests/temp_folder.h"

#include <QtCore/QTimer>
#include <QtTest/QtTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QFileDialog>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QMessageBox>
#include <QtWidgets/QPushButton>

#include <gtest/gtest.h>

namespace {

class QuestionDialogs : public CWindowedTest {
protected:
    /// What the user does in the next dialog of this kind.
    template <class Dialog>
    void Then(const std::function<void(Dialog& dialog)>& fn) {
        QTimer::singleShot(0, qApp, [fn] {
            auto* const pDialog = qobject_cast<Dialog*>(QApplication::activeModalWidget());
            if (!pDialog) return QApplication::exit(1); // the question ends as given up, and the test fails
            fn(*pDialog);
        });
    }
    void ThenEnter(const std::string& strName) {
        Then<QFileDialog>([strName](QFileDialog& dialog) {
            auto* const pName = dialog.findChild<QLineEdit*>();
            pName->setText(QString::fromStdString(strName));
            QTest::keyClick(pName, Qt::Key_Return);
        });
    }
    const CTempFolder m_folder;
};

} // namespace

TEST_F(QuestionDialogs, OnlyFilesAndChangesAreAskedForThisWay) {
    EXPECT_EQ(AskQuestionByDialog({"To point: ", CAnswerKind::Point}, nullptr), std::nullopt);
    EXPECT_EQ(AskQuestionByDialog({"Text: "}, nullptr), std::nullopt);
}

TEST_F(QuestionDialogs, AFileToOpenMustBeThere) {
    const std::string strFile = m_folder.Write("a.dxf", "0");
    const CQuestion question{"File: ", CAnswerKind::FileToOpen, {}, {}, ".dwg .dxf"};
    QStringList arFilters;
    Then<QFileDialog>([&](QFileDialog& dialog) {
        arFilters = dialog.nameFilters();
        EXPECT_EQ(dialog.windowTitle(), u"Open file"_qs);
        auto* const pName = dialog.findChild<QLineEdit*>();
        pName->setText(QString::fromStdString(strFile));
        QTest::keyClick(pName, Qt::Key_Return);
    });
    EXPECT_EQ(AskQuestionByDialog(question, nullptr), strFile);
    EXPECT_EQ(arFilters.join(u'|'), u"Files (*.dwg *.dxf)|All files (*)"_qs);
}

TEST_F(QuestionDialogs, AFileToSaveGetsTheEndingOfTheFormatChosen) {
    ThenEnter(m_folder.Path("plain"));
    EXPECT_EQ(AskFileToSave("Export", ".pdf .svg", nullptr), m_folder.Path("plain.pdf"));
    ThenEnter(m_folder.Path("own.svg"));
    EXPECT_EQ(AskFileToSave("Export", ".pdf .svg", nullptr), m_folder.Path("own.svg"));
    Then<QFileDialog>([&](QFileDialog& dialog) {
        dialog.selectNameFilter(dialog.nameFilters().back());
        emit dialog.filterSelected(dialog.nameFilters().back());
        auto* const pName = dialog.findChild<QLineEdit*>();
        pName->setText(QString::fromStdString(m_folder.Path("other")));
        QTest::keyClick(pName, Qt::Key_Return);
    });
    EXPECT_EQ(AskFileToSave("Export", ".pdf .svg", nullptr), m_folder.Path("other.svg"));
}

TEST_F(QuestionDialogs, EscapeGivesTheQuestionUp) {
    Then<QFileDialog>([](QFileDialog& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); });
    EXPECT_EQ(AskQuestionByDialog({"File: ", CAnswerKind::FileToSave, {}, {}, ".dwg"}, nullptr), g_szEscape);
    Then<QFileDialog>([](QFileDialog& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); });
    EXPECT_EQ(AskFileToSave("Export", ".pdf", nullptr), "");
    Then<QMessageBox>([](QMessageBox& box) { QTest::keyClick(&box, Qt::Key_Escape); });
    EXPECT_EQ(AskQuestionByDialog({"Save? ", CAnswerKind::SaveChanges}, nullptr), g_szEscape);
}

TEST_F(QuestionDialogs, ChangesAreSavedByEnterOrLeftByNo) {
    const CQuestion question{"Save changes to a.dwg? ", CAnswerKind::SaveChanges};
    Then<QMessageBox>([](QMessageBox& box) {
        EXPECT_EQ(box.text(), u"Save changes to a.dwg?"_qs);
        QTest::keyClick(box.defaultButton(), Qt::Key_Return);
    });
    EXPECT_EQ(AskQuestionByDialog(question, nullptr), "yes");
    Then<QMessageBox>([](QMessageBox& box) { box.button(QMessageBox::No)->click(); });
    EXPECT_EQ(AskQuestionByDialog(question, nullptr), "no");
}
