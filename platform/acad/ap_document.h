#pragma once
// A drawing that is open in the program.

#include "platform/acad/db_database.h"
#include "platform/acad/typed_text.h"

#include <memory>
#include <string>
#include <vector>

namespace AcAp {
/// How a document is locked.
enum DocLockMode {
    kNone = 0,
    kAutoWrite = 0x01,
    kNotLocked = 0x02,
    kWrite = 0x04,
    kProtectedAutoWrite = 0x14,
    kRead = 0x20,
    kXWrite = 0x40, ///< alone: beside it there is no other lock
};
} // namespace AcAp

/// A document: the drawing, what is typed at its command line, and its locks.
class AcApDocument : public AcRxObject {
public:
    static AcRxClass* desc();
    AcRxClass* isA() const override { return AcApDocument::desc(); }

    /// strTitle names the document while the drawing has no file.
    AcApDocument(std::unique_ptr<AcDbDatabase> pDatabase, std::wstring strTitle);
    ~AcApDocument() override; ///< the drawing's selections and texts sent to it go as well

    AcDbDatabase* database() const { return m_pDatabase.get(); }
    bool isNamedDrawing() const; ///< it has a file
    /// Full path of the file, else the title; good until the next call.
    const ACHAR* fileName() const;
    /// The file's name without its folder, else the title; good until the next call.
    const ACHAR* docTitle() const;
    /// The lock taken last that is still held; kNotLocked for none.
    AcAp::DocLockMode lockMode() const { return m_arLocks.empty() ? AcAp::kNotLocked : m_arLocks.back(); }

    // For the document manager: eInvalidInput for a mode that locks nothing, eLockViolation.
    Acad::ErrorStatus Lock(AcAp::DocLockMode mode);
    Acad::ErrorStatus Unlock();

    CTypedText& TypedText() { return m_typed; }

private:
    std::unique_ptr<AcDbDatabase> m_pDatabase;
    std::wstring m_strTitle;
    mutable std::wstring m_strFileName, m_strFileTitle;
    std::vector<AcAp::DocLockMode> m_arLocks;
    CTypedText m_typed;
};
