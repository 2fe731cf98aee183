#pragma once

#include "platform/acad/db_database.h"

#include <memory>
#include <string>
#include <vector>

/// The drawings open in the program, and which of them is the current (working) one. There is always one.
class CDrawings {
public:
    CDrawings() { AddNew(); }
    ~CDrawings();
    CDrawings(const CDrawings&) = delete;
    CDrawings& operator=(const CDrawings&) = delete;

    AcDbDatabase& Current() const { return *m_arDrawings[m_nCurrent].m_pDatabase; }
    void AddNew();                 ///< opens a new drawing, which becomes the current one
    void ReplaceCurrent();         ///< a new drawing in place of the current one
    std::string Name() const;      ///< the current drawing's file path, else "Drawing1" and so on; UTF-8
    std::string FolderGbk() const; ///< folder of the current drawing's file; empty without a file
    std::vector<std::string> ChangedNames() const; ///< of all drawings changed and not saved

private:
    struct COpenDrawing {
        std::unique_ptr<AcDbDatabase> m_pDatabase;
        int m_nNumber; ///< names a drawing without a file
    };
    static std::string NameOf(const COpenDrawing& drawing);
    COpenDrawing MakeNew();
    void MakeCurrent(size_t index);

    std::vector<COpenDrawing> m_arDrawings;
    size_t m_nCurrent = 0;
    int m_nMade = 0;
};
