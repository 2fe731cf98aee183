#pragma once

#include "host/files/drawing_format.h"
#include "platform/acad/ap_document.h"

#include <memory>
#include <string>
#include <vector>

/// What the program remembers of a drawing's file besides its path.
struct CFileNotes {
    bool m_bExploded = false;  ///< it was saved with custom entities as their parts
    std::string m_strReadFrom; ///< full path, UTF-8; empty when it was made anew
    CDrawingLosses m_losses;   ///< what that file holds and the drawing does not
};

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
    void Add(std::unique_ptr<AcDbDatabase> pDatabase, CFileNotes notes = {}); ///< it becomes the current one
    void MakeCurrent(AcApDocument& document);
    /// Closes it, saved or not; the one that was current before it becomes the current one.
    void Close(AcApDocument& document);

    /// The file's path, else "Drawing1" and so on; UTF-8.
    static std::string NameOf(const AcApDocument& document);
    /// For a document of this program.
    CFileNotes& NotesOf(const AcApDocument& document);
    /// The number of such a one, counted in order of opening. No later drawing gets it, as one may get the
    /// address.
    int NumberOf(const AcApDocument& document) const;

private:
    struct COpenDrawing {
        std::unique_ptr<AcApDocument> m_pDocument;
        CFileNotes m_notes;
        int m_nNumber;
        int m_nActivated; ///< the higher, the later it was made the current one
    };
    static auto IsOf(const AcApDocument& document) {
        return [&document](const COpenDrawing& drawing) { return drawing.m_pDocument.get() == &document; };
    }

    std::vector<COpenDrawing> m_arDrawings;
    AcApDocument* m_pCurrent = nullptr;
    int m_nMade = 0, m_nActivations = 0;
};
