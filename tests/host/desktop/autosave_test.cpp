#include "host/desktop/autosave.h"

#include "host/console/append_entity.h"
#include "host/files/drawing_storage.h"
#include "platform/acad/db_line.h"
#include "tests/host/desktop/desktop_user.h"
#include "tests/temp_folder.h"

#include <QtWidgets/QApplication>
#include <QtWidgets/QMessageBox>
#include <QtWidgets/QPushButton>

#include <gtest/gtest.h>

#include <sys/wait.h>
#include <unistd.h>

namespace {

void AddLine(AcDbDatabase& drawing) {
    auto* const pLine = new AcDbLine(AcGePoint3d(0.0, 0.0, 0.0), AcGePoint3d(10.0, 10.0, 0.0));
    const CDbOpen<AcDbBlockTableRecord> space(drawing.ModelSpaceId(), AcDb::kForWrite);
    AcDbObjectId id;
    ASSERT_EQ(space->appendAcDbEntity(id, pLine), Acad::eOk);
    pLine->close();
}

/// A run that keeps its drawing, when that is changed, and dies.
void Die(const std::string& strFolder, const std::function<void(AcDbDatabase& drawing)>& fnChange) {
    StartTestQt();
    const pid_t child = fork();
    if (child == 0) {
        CDrawings drawings;
        fnChange(*drawings.CurrentDocument()->database());
        CAutosave autosave(strFolder);
        _exit(autosave.Save(drawings) ? 1 : 0);
    }
    int nStatus = -1;
    ASSERT_EQ(waitpid(child, &nStatus, 0), child);
    ASSERT_EQ(nStatus, 0);
}

/// The drawing is of this file; none: untitled.
void DieWithAChange(const std::string& strFolder, const std::wstring& strFile) {
    Die(strFolder, [&](AcDbDatabase& drawing) {
        AddLine(drawing);
        drawing.SetFilename(strFile.c_str());
    });
}

std::size_t FilesIn(const std::string& strFolder) {
    const std::filesystem::directory_iterator files(strFolder);
    return static_cast<std::size_t>(std::distance(begin(files), end(files)));
}

void Answer(const CDesktopUser& user, QMessageBox::StandardButton button) {
    user.Act([&] {
        auto* const pBox = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        ASSERT_TRUE(pBox);
        pBox->button(button)->click();
    });
}

} // namespace

TEST(Autosave, KeepsACopyOfAChangedDrawingUntilItIsSaved) {
    StartTestQt();
    const CTempFolder folder;
    CDrawings drawings;
    AcDbDatabase& drawing = *drawings.CurrentDocument()->database();
    {
        CAutosave autosave(folder.Path());
        EXPECT_EQ(autosave.Save(drawings), std::nullopt);
        EXPECT_EQ(FilesIn(folder.Path()), 1U) << "the lock alone";
        AddLine(drawing);
        EXPECT_EQ(autosave.Save(drawings), std::nullopt);
        EXPECT_TRUE(drawing.IsModified());
        EXPECT_EQ(FilesIn(folder.Path()), 3U);
        EXPECT_TRUE(autosave.Left().empty()) << "this run lives";
        drawing.SetModified(false);
        EXPECT_EQ(autosave.Save(drawings), std::nullopt);
        EXPECT_EQ(FilesIn(folder.Path()), 1U);
        drawing.SetModified(true);
        autosave.Save(drawings);
    }
    EXPECT_EQ(FilesIn(folder.Path()), 0U) << "a run that ends with care leaves nothing";
}

TEST(Autosave, FindsWhatADeadRunLeft) {
    const CTempFolder folder;
    DieWithAChange(folder.Path(), L"/drawings/one.dwg");
    DieWithAChange(folder.Path(), L"");
    const CAutosave autosave(folder.Path());
    const std::vector<CKeptDrawing> arLeft = autosave.Left();
    ASSERT_EQ(arLeft.size(), 2U);
    EXPECT_EQ(arLeft[0].m_strName, "/drawings/one.dwg");
    EXPECT_TRUE(arLeft[0].m_bNamed);
    EXPECT_FALSE(arLeft[1].m_bNamed);
    EXPECT_EQ(ReadDrawing(folder.Read(arLeft[0].m_file.filename().string())).m_format, CDrawingFormat::Dwg);
    CAutosave::Discard(arLeft[0]);
    EXPECT_EQ(autosave.Left().size(), 1U);
}

TEST(Autosave, OneProgramAtATimeHasTheClaimToADrawing) {
    const CTempFolder folder;
    DieWithAChange(folder.Path(), L"/drawings/one.dwg");
    const CAutosave autosave(folder.Path());
    const std::vector<CKeptDrawing> arLeft = autosave.Left();
    ASSERT_EQ(arLeft.size(), 1U);
    {
        const CDescriptor first = CAutosave::Claim(arLeft[0]);
        EXPECT_TRUE(first);
        EXPECT_FALSE(CAutosave::Claim(arLeft[0]));
    }
    EXPECT_TRUE(CAutosave::Claim(arLeft[0]));
    CAutosave::Discard(arLeft[0]);
    EXPECT_FALSE(CAutosave::Claim(arLeft[0]));
}

TEST(Autosave, RemovesTheLockOfARunThatDiedWithNothingToKeepAndNoLivingOnes) {
    const CTempFolder folder;
    Die(folder.Path(), [](AcDbDatabase&) {});
    EXPECT_EQ(FilesIn(folder.Path()), 1U);
    {
        const CAutosave autosave(folder.Path());
        EXPECT_EQ(FilesIn(folder.Path()), 1U) << "its own";
        Die(folder.Path(), [](AcDbDatabase&) {});
        EXPECT_TRUE(std::filesystem::exists(folder.Path(std::to_string(getpid()) + ".lock")));
    }
    const CAutosave next(folder.Path());
    EXPECT_EQ(FilesIn(folder.Path()), 1U);
}

TEST(Autosave, LeavesTheCopiesOfADeadRunOfTheSameProcessNumber) {
    const CTempFolder folder;
    DieWithAChange(folder.Path(), L"/drawings/one.dwg");
    std::string strDead;
    for (const auto& entry : std::filesystem::directory_iterator(folder.Path()))
        if (entry.path().extension() == ".dwg") strDead = entry.path().stem().string();
    const std::string strSame = std::to_string(getpid()) + strDead.substr(strDead.find('-'));
    for (const char* const szEnding : {".dwg", ".name"})
        std::filesystem::rename(folder.Path(strDead + szEnding), folder.Path(strSame + szEnding));
    {
        CDrawings drawings;
        AddLine(*drawings.CurrentDocument()->database());
        CAutosave autosave(folder.Path());
        EXPECT_EQ(autosave.Save(drawings), std::nullopt);
        ASSERT_EQ(autosave.Left().size(), 1U);
        EXPECT_EQ(autosave.Left()[0].m_strName, "/drawings/one.dwg");
    }
    EXPECT_EQ(CAutosave(folder.Path()).Left().size(), 1U) << "the other run's copy went with its own";
}

TEST(Autosave, TellsWhenNothingCanBeKept) {
    const CTempFolder folder;
    const std::string strFile = folder.Write("file", "");
    CDrawings drawings;
    EXPECT_NE(CAutosave(strFile + "/folder").Save(drawings), std::nullopt);
}

TEST(KeptDrawings, AreOfferedAndOpenAsChangedOnesOfTheirOwnName) {
    const CTempFolder folder;
    DieWithAChange(folder.Path(), L"/drawings/one.dwg");
    AtDesktop({.m_strRoot = "/nowhere", .m_strKept = folder.Path()}, [&](const CDesktopUser& user) {
        Answer(user, QMessageBox::Yes);
        EXPECT_EQ(user.Shown(), 1U);
        user.Say("DOCUMENTS");
        EXPECT_NE(user.Said().find("2 * /drawings/one.dwg (changed)"), std::string::npos) << user.Said();
        EXPECT_EQ(FilesIn(folder.Path()), 3U) << "this run's lock and copy, at once; not the other run's";
    });
    EXPECT_EQ(FilesIn(folder.Path()), 0U);
}

TEST(KeptDrawings, AreAskedForAgainAfterCancelAndGoAfterNo) {
    const CTempFolder folder;
    DieWithAChange(folder.Path(), L"");
    for (const auto button : {QMessageBox::Cancel, QMessageBox::No})
        AtDesktop({.m_strRoot = "/nowhere", .m_strKept = folder.Path()}, [&](const CDesktopUser& user) {
            Answer(user, button);
            EXPECT_EQ(user.Shown(), 0U);
        });
    EXPECT_EQ(FilesIn(folder.Path()), 0U);
}

TEST(KeptDrawings, AreNotOfferedWhileAnotherWindowAsksForThem) {
    const CTempFolder folder;
    DieWithAChange(folder.Path(), L"/drawings/one.dwg");
    const CDescriptor others = CAutosave::Claim(CAutosave(folder.Path()).Left().at(0));
    AtDesktop({.m_strRoot = "/nowhere", .m_strKept = folder.Path()}, [&](const CDesktopUser& user) {
        user.Do([] { EXPECT_EQ(QApplication::activeModalWidget(), nullptr); });
        EXPECT_EQ(user.Prompt(), "Ready");
    });
    EXPECT_EQ(CAutosave(folder.Path()).Left().size(), 1U);
}
