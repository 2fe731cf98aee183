#include "host/datamanager/window/new_project_dialog.h"

#include <QtWidgets/QLabel>

#include "tests/host/datamanager/window/window_test.h"

namespace {

class NewProjectDialog : public CDataWindowTest {
protected:
    /// Opens the dialog and types number and name.
    void Type(const QString& strNumber, const QString& strName) {
        Press(Qt::Key_N, Qt::ControlModifier);
        Await([&] { return m_pWindow->findChild<QLineEdit*>(u"Number"_qs) != nullptr; },
              "the dialog is there");
        Activate(Find(u"NewProjectDialog"_qs));
        QTest::keyClicks(&Find(u"Number"_qs), strNumber);
        Find<QLineEdit>(u"Name"_qs).setText(strName); // keys of a test are Latin only
    }
    void PressReturn() {
        QTest::keyClick(&Find(u"Name"_qs), Qt::Key_Return);
        AwaitIdle();
    }
    bool IsOpen() const { return m_pWindow->findChild<QLineEdit*>(u"Number"_qs) != nullptr; }
};

} // namespace

TEST_F(NewProjectDialog, MakesTheProjectAndChoosesIt) {
    Open();
    Type(u"GC-2"_qs, u"二号工程"_qs);
    PressReturn();
    Await([&] { return !IsOpen(); }, "the dialog has gone");
    EXPECT_EQ(Rows(u"Projects"_qs), (QStringList{u"A|one|0|"_qs, u"GC-2|二号工程|0|"_qs}));
    EXPECT_EQ(Table(u"Projects"_qs).Chosen(), 1);
    EXPECT_NE(m_program.Do("list --root \"$ROOT\"").find(Utf8(u8"GC-2 二号工程 (GCSY 2, GCBZ 0)")),
              std::string::npos);
}

TEST_F(NewProjectDialog, StaysWithTheReasonWhenTheProjectIsRefused) {
    Open();
    Type(u"a/b"_qs, u"x"_qs);
    PressReturn();
    EXPECT_EQ(Find<QLabel>(u"Refusal"_qs).text(),
              u"\"a/b\" cannot be a project number: it names a folder"_qs);
    EXPECT_TRUE(Find(u"Number"_qs).hasFocus());
    QTest::keyClicks(&Find(u"Number"_qs), u"B"_qs); // types over what is selected
    PressReturn();
    Await([&] { return !IsOpen(); }, "the dialog has gone");
    EXPECT_EQ(Rows(u"Projects"_qs), (QStringList{u"A|one|0|"_qs, u"B|x|0|"_qs}));
}

TEST_F(NewProjectDialog, NamesTheCharacterThatTheCodePageLacks) {
    Open();
    Type(u"C"_qs, u"𠀀"_qs);
    PressReturn();
    EXPECT_EQ(Find<QLabel>(u"Refusal"_qs).text(), u"𠀀: \"𠀀\" is not in code page 936"_qs);
}

TEST_F(NewProjectDialog, MakesNothingWithoutNumberAndName) {
    Open();
    Type({}, u"x"_qs);
    QTest::keyClick(&Find(u"Name"_qs), Qt::Key_Return);
    EXPECT_FALSE(m_pWindow->IsBusy());
    EXPECT_TRUE(IsOpen());
    QTest::keyClick(&Find(u"Name"_qs), Qt::Key_Escape);
    Await([&] { return !IsOpen(); }, "the dialog has gone");
    EXPECT_EQ(Rows(u"Projects"_qs), QStringList{u"A|one|0|"_qs});
}
