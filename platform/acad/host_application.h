#pragma once
// What the drawing database and the editor functions need of the program they run in.

#include "platform/acad/db_database.h"

#include <string>

/// Services of the host to the drawing database.
class AcDbHostApplicationServices {
public:
    AcDbDatabase* workingDatabase() const { return m_pWorking; } ///< null when no drawing is open
    void setWorkingDatabase(AcDbDatabase* pDatabase) { m_pWorking = pDatabase; }

private:
    AcDbDatabase* m_pWorking = nullptr;
};

AcDbHostApplicationServices* acdbHostApplicationServices();

/// What a prompt came back with.
enum class CPromptResult { Value, None, Cancel };

/// How a command ended that another one ran.
enum class CCommandResult { Done, Failed, Cancelled };

/// The user's side of the editor: a script, a terminal or a window. Texts are GBK.
class CEditorHost {
public:
    virtual ~CEditorHost() = default;
    virtual void Print(const std::string& strText) = 0;
    /// pBase is the point that a rubber band begins at, null for none.
    virtual CPromptResult AskPoint(const std::string& strPrompt, const AcGePoint3d* pBase,
                                   AcGePoint3d* pPoint) = 0;
    // The rest is for hosts with a user: where there is none, these are cancelled.
    /// One entity of the working drawing; the point is the origin for a pick without one.
    virtual CPromptResult AskEntity(const std::string& /*strPrompt*/, AcDbObjectId* /*pId*/,
                                    AcGePoint3d* /*pPoint*/) {
        return CPromptResult::Cancel;
    }
    /// Several, each once.
    virtual CPromptResult AskSelection(const std::string& /*strPrompt*/,
                                       std::vector<AcDbObjectId>* /*pIds*/) {
        return CPromptResult::Cancel;
    }
    /// Runs a command from within another: the words are its name and its first answers; the user gives what
    /// it still needs.
    virtual CCommandResult RunCommand(const std::vector<std::string>& /*arWords*/) {
        return CCommandResult::Failed;
    }
    /// Full path of a file by the host's search order, GBK; empty when there is none.
    virtual std::string FindFile(const std::string& strName) = 0;
};

CEditorHost* EditorHost(); ///< null when none is registered
void SetEditorHost(CEditorHost* pHost);

/// The files of drawings, for AcDbDatabase::readDwgFile and saveAs. Paths are UTF-8.
class CDrawingFileHost {
public:
    virtual ~CDrawingFileHost() = default;
    /// A drawing made anew; untouched when the status is not eOk.
    virtual Acad::ErrorStatus Read(const std::string& utf8Path, std::unique_ptr<AcDbDatabase>* pDatabase) = 0;
    virtual Acad::ErrorStatus Write(const AcDbDatabase& database, const std::string& utf8Path) = 0;
};

CDrawingFileHost* DrawingFileHost(); ///< null when none is registered
void SetDrawingFileHost(CDrawingFileHost* pHost);
