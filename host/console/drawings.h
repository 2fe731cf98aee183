#pragma once

#include "platform/acad/ap_document.h"

#include <memory>
#include <string>
#include <vector>

/// The drawings open in the program, and which of them is the current (working) one, if any is open. The
/// modules are told of each that comes and goes.
class CDrawings {
public:
    CDrawings() { AddNew(); }
    ~CDrawings();
    CDrawings(const CDrawings&) = delete;
    CDrawings& operator=(const CDrawings&) = delete;

    AcApDocument* CurrentDocument() const { return m_pCurrent; } ///< null when none is open
    std::vector<AcApDocument*> Documents() const;                ///< in order of opening
    std::vector<AcApDocument*> ChangedDocuments() const;         ///< changed and not saved
    std::string FolderGbk() const; ///< folder of the current drawing's file; empty without a file

    void AddNew() { Add(std::make_unique<AcDbDatabase>()); }
    void Add(std::unique_ptr<AcDbDatabase> pDatabase); ///< it becomes the current one
    void MakeCurrent(AcApDocument& document);
    /// Closes it, saved or not; the one that was current before it becomes the current one.
    void Close(AcApDocument& document);

    /// The file's path, else "Drawing1" and so on; UTF-8.
    static std::string NameOf(const AcApDocument& document);

private:
    struct COpenDrawing {
        std::unique_ptr<AcApDocument> m_pDocument;
        int m_nActivated; ///< the higher, the later it was made the current one
    };
    std::vector<COpenDrawing> m_arDrawings;
    AcApDocument* m_pCurrent = nullptr;
    int m_nMade = 0, m_nActivations = 0;
};
