#pragma once

#include "host/console/drawings.h"
#include "platform/windows/descriptor.h"

#include <filesystem>
#include <optional>
#include <set>

/// A drawing kept by a run that ended without its care.
struct CKeptDrawing {
    std::filesystem::path m_file;
    std::string m_strName; ///< its own file, or its title while it had none; UTF-8
    bool m_bNamed = false; ///< it had a file
};

/// Copies of the drawings that are changed and not saved, in a folder of the user's. They go when the run
/// ends with care; what a run left otherwise is found by the next one.
class CAutosave {
public:
    /// Makes the folder, and removes the locks that dead runs left there. Without one that can be written to,
    /// nothing is kept.
    explicit CAutosave(std::filesystem::path folder);
    ~CAutosave();
    CAutosave(const CAutosave&) = delete;
    CAutosave& operator=(const CAutosave&) = delete;

    /// The folder of the user: tervo/autosave in XDG_STATE_HOME or ~/.local/state.
    static std::filesystem::path UserFolder();

    /// Brings the copies up to date: one of each changed drawing. Why one could not be kept, as a line of
    /// UTF-8; none when all were. Between commands only.
    std::optional<std::string> Save(const CDrawings& drawings);

    /// What runs that are over left.
    std::vector<CKeptDrawing> Left() const;
    /// The right to ask the user for one, held as long as the file is open: of programs that start at once
    /// one has it. A closed one when another program has it, or the drawing is there no longer.
    static CDescriptor Claim(const CKeptDrawing& kept);
    static void Discard(const CKeptDrawing& kept);

private:
    std::filesystem::path Copy(int nNumber) const;
    void Keep(const AcApDocument& document, const std::filesystem::path& copy) const;

    std::filesystem::path m_folder;
    std::string m_strRun;
    int m_nLock = -1;        // held while the run lives
    std::set<int> m_setKept; // numbers of the drawings that have copies
};
