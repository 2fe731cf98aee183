#include "commands/document_session.h"

#include "tests/support/documents.h"
#include "tests/support/drawing.h"
#include "tests/support/suite_fixture.h"

namespace {
class DocumentSession : public CSuiteTest {
protected:
    static short Sdi() {
        resbuf value;
        EXPECT_EQ(acedGetVar(L"SDI", &value), RTNORM);
        return value.resval.rint;
    }

    CTestDrawing m_drawing;
    CTestDocuments m_documents;
};
} // namespace

TEST_F(DocumentSession, HasSeveralDocumentsOnlyWhileSdiIsZero) {
    EXPECT_TRUE(IsMultiDocument());
    for (const short nSdi : std::initializer_list<short>{1, 2, 3}) {
        SetSdi(nSdi);
        EXPECT_FALSE(IsMultiDocument()) << nSdi;
    }
    SetSdi(0);
    EXPECT_TRUE(IsMultiDocument());
}

TEST_F(DocumentSession, TakesTheModeOfTheSettings) {
    ApplyConfiguredSdi();
    EXPECT_EQ(Sdi(), 1);
    for (const char* pMode : {"0", "2"}) {
        WritePrivateProfileStringA("MDI", "MDIMODE", pMode, g_strSettingsIni);
        ApplyConfiguredSdi();
        EXPECT_EQ(std::to_string(Sdi()), pMode);
    }
}

TEST_F(DocumentSession, WithOneDocumentBecomesSingleWithoutAQuestion) {
    m_documents.Add(L"a");
    EXPECT_EQ(EnsureSingleDocument("标题"), 1);
    EXPECT_EQ(Sdi(), 1);
    EXPECT_TRUE(Boxes().empty());
    EXPECT_EQ(m_drawing.m_strPrinted, "");
}

TEST_F(DocumentSession, AsksBeforeItClosesTheOthers) {
    m_documents.Add(L"a");
    m_documents.Add(L"b");
    m_nAnswer = IDNO;
    EXPECT_EQ(EnsureSingleDocument("标题"), 0);
    EXPECT_EQ(Boxes(), CTexts{"现在AutoCAD已经打开了多个文档,\n\n本命令只允许在打开一个文档的条件下使用.\n\n "
                              "点击\"是\"程序自动关闭打开的文档,继续执行命令。\n\n点击\"否\"取消本命令"});
    EXPECT_EQ(m_strCaption, "标题");
    EXPECT_EQ(m_uStyle, MB_YESNO | MB_ICONINFORMATION);
    EXPECT_EQ(Sdi(), 0);
    EXPECT_EQ(m_documents.Shown(), "a b");
    EXPECT_EQ(m_drawing.m_strPrinted, "");
}

TEST_F(DocumentSession, SendsCloseToTheOthersAndSaysThatTheyAreStillOpen) {
    m_documents.Add(L"a");
    AcApDocument& current = m_documents.Add(L"b");
    m_documents.Add(L"c");
    m_documents.Activate(current);
    m_nAnswer = IDYES;
    EXPECT_EQ(EnsureSingleDocument("标题"), 0);
    EXPECT_EQ(m_drawing.m_strPrinted, "\n文档无法自动关闭,请使用sdi命令设置成单位档模式来执行本命令.\n");
    EXPECT_EQ(Sdi(), 0);
    EXPECT_EQ(m_documents.Shown(), "a[close] b c[close]");
}

TEST_F(DocumentSession, BecomesSingleWhenTheOthersAreGoneBehindTheQuestion) {
    AcApDocument& other = m_documents.Add(L"a");
    m_documents.Add(L"b");
    CMessageBoxHost closing;
    closing.m_show = [&](HWND, const std::wstring&, const std::wstring&, UINT) {
        m_documents.CloseDocument(other);
        return IDYES;
    };
    SetMessageBoxHost(closing);
    EXPECT_EQ(EnsureSingleDocument("标题"), 1);
    EXPECT_EQ(Sdi(), 1);
    EXPECT_EQ(m_documents.Shown(), "b");
    EXPECT_EQ(m_drawing.m_strPrinted, "");
}

TEST_F(DocumentSession, ClosesTheCurrentDocument) {
    m_documents.Add(L"a");
    m_documents.Add(L"b");
    EXPECT_EQ(CloseDocumentAndEnd(0), Acad::eOk);
    EXPECT_EQ(m_documents.Shown(), "a");
    acDocManager->lockDocument(m_documents.Current());
    EXPECT_EQ(CloseDocumentAndEnd(0), Acad::eLockViolation);
    EXPECT_EQ(m_documents.Shown(), "a");
    EXPECT_EQ(CloseDocumentAndEnd(1), Acad::eOk);
    EXPECT_EQ(CloseDocumentAndEnd(1), Acad::eNoDocument);
}

TEST_F(DocumentSession, ClosesNoDocumentFromWithinACommand) {
    m_documents.Add(L"a");
    const CDocumentContext command;
    EXPECT_EQ(CloseDocumentAndEnd(0), Acad::eInvalidContext);
}

TEST_F(DocumentSession, SendsACommandBehindAnEscape) {
    AcApDocument& first = m_documents.Add(L"a");
    first.TypedText().Type(L"begun", true);
    SendCommandToDocument("画图");
    EXPECT_EQ(m_documents.Shown(), "a[^][画图]");
}

TEST_F(DocumentSession, SendsACommandWithoutMakingItsDocumentCurrent) {
    m_documents.Add(L"a");
    AcApDocument& current = m_documents.Add(L"b");
    m_documents.Activate(*m_documents.Documents().front());
    SendCommandToDocument("LINE");
    m_documents.Activate(current);
    EXPECT_EQ(m_documents.Shown(), "a[^][LINE] b");
    EXPECT_EQ(m_documents.Current(), &current);
}
