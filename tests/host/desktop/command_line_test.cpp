#include "host/desktop/command_line.h"

#include "tests/host/desktop/desktop_user.h"

#include <QtTest/QtTest>
#include <QtWidgets/QAbstractItemView>
#include <QtWidgets/QCompleter>

#include <gtest/gtest.h>

namespace {

class CommandLine : public testing::Test {
protected:
    CommandLine() {
        StartTestQt();
        m_pLine = std::make_unique<CCommandLine>(CCommandLine::CSinks{
            [this](const QString& strLine) { m_arEntered << strLine; }, [this] { ++m_nEscapes; }});
        m_pEdit = m_pLine->findChild<QLineEdit*>();
    }
    void Enter(const char16_t* szText) {
        m_pEdit->setText(QString::fromUtf16(szText));
        QTest::keyClick(m_pEdit, Qt::Key_Return);
    }
    QString After(Qt::Key key) {
        QTest::keyClick(m_pEdit, key);
        return m_pEdit->text();
    }
    std::unique_ptr<CCommandLine> m_pLine;
    QLineEdit* m_pEdit = nullptr;
    QStringList m_arEntered;
    int m_nEscapes = 0;
};

} // namespace

TEST_F(CommandLine, EnterGivesTheLineAndEmptiesIt) {
    Enter(u"line 0,0");
    Enter(u"");
    EXPECT_EQ(m_arEntered, QStringList({u"line 0,0"_qs, u""_qs}));
    EXPECT_EQ(m_pEdit->text(), QString());
}

TEST_F(CommandLine, UpAndDownBringBackTheLinesTypedBefore) {
    Enter(u"one");
    Enter(u"two");
    Enter(u"two");
    Enter(u"");
    EXPECT_EQ(After(Qt::Key_Up), u"two"_qs);
    EXPECT_EQ(After(Qt::Key_Up), u"one"_qs);
    EXPECT_EQ(After(Qt::Key_Up), u"one"_qs);
    EXPECT_EQ(After(Qt::Key_Down), u"two"_qs);
    EXPECT_EQ(After(Qt::Key_Down), QString());
}

TEST_F(CommandLine, TabCompletesTheNameOfACommand) {
    m_pLine->SetProposals({u"BRCF"_qs, u"BREN"_qs, u"LINE"_qs});
    m_pEdit->setText(u"li"_qs);
    EXPECT_EQ(After(Qt::Key_Tab), u"LINE"_qs);
    m_pLine->SetProposals({});
    m_pEdit->setText(u"br"_qs);
    QTest::keyClick(m_pEdit, Qt::Key_Tab);
    EXPECT_EQ(m_pEdit->text(), u"br"_qs) << "an answer is no command";
}

TEST_F(CommandLine, WhatIsProposedStandsAboveTheLineUntilItIsEntered) {
    m_pLine->SetProposals({u"BRCF"_qs, u"BREN"_qs, u"LINE"_qs});
    m_pLine->move(100, 300);
    m_pLine->show();
    m_pLine->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(m_pLine.get()));
    m_pEdit->setFocus();
    QTest::keyClicks(m_pEdit, u"br"_qs);
    const QAbstractItemView& proposals = *m_pEdit->completer()->popup();
    EXPECT_TRUE(proposals.isVisible());
    EXPECT_EQ(proposals.model()->rowCount(), 2);
    EXPECT_EQ(proposals.geometry().bottomLeft() + QPoint(0, 1), m_pEdit->mapToGlobal(QPoint()));
    QTest::keyClick(m_pEdit, Qt::Key_Return);
    EXPECT_FALSE(proposals.isVisible());
}

TEST_F(CommandLine, EscapeDropsWhatIsTyped) {
    m_pEdit->setText(u"half"_qs);
    EXPECT_EQ(After(Qt::Key_Escape), QString());
    EXPECT_EQ(m_nEscapes, 1);
}

TEST_F(CommandLine, TheTextWindowKeepsAllThatWasSaid) {
    for (int i = 0; i < 100; ++i)
        m_pLine->Append(u"line %1\n"_qs.arg(i));
    EXPECT_TRUE(m_pLine->Text().startsWith(u"line 0\nline 1\n"_qs));
    EXPECT_TRUE(m_pLine->Text().endsWith(u"line 98\nline 99"_qs));
}
