#pragma once
// What a drawing remembers of its changes, command by command, to undo and redo them.

#include "platform/acad/memory_filer.h"

#include <variant>
#include <vector>

/// The variables of a drawing, as far as they are undone.
struct CDbVariables {
    double m_dLtscale = 1.0;
    AcGePoint3d m_ptInsbase;
    AcDbObjectId m_idCeltype; ///< null: ByLayer
    AcDbObjectId m_idClayer, m_idTextstyle;
    bool operator==(const CDbVariables&) const = default;
};

/// Steps of changes. An object's change is its record from before; reading it back over the object as it
/// stands is the undo. Recording begins with the first step.
class CUndoLog {
public:
    explicit CUndoLog(AcDbDatabase& database)
        : m_database(database) {}

    bool IsRecording() const { return m_bRecording; }
    /// What changes from here on is one step, until the next; one without changes leaves no trace.
    void BeginStep();
    /// Undoes (or redoes) up to nSteps steps; the number of those that there were.
    int Undo(int nSteps) { return Replay(m_arDone, m_arUndone, nSteps); }
    int Redo(int nSteps) { return Replay(m_arUndone, m_arDone, nSteps); }

    /// Whether changes are recorded; what happens meanwhile cannot be undone.
    void SetRecording(bool bRecording) { m_bRecording = bRecording; }

    // For the drawing database: called before an erasure and a variable, after the rest.
    void NoteAppended(CDbStub& stub);
    void NoteErasure(CDbStub& stub);
    void NoteChanged(CDbStub& stub, CDbRecord before);
    void NoteVariables(const CDbVariables& before);

private:
    struct CChange {
        CDbStub* m_pStub;
        CDbRecord m_record;
    };
    struct CErasure {
        CDbStub* m_pStub;
        bool m_bErased; ///< as it was before
    };
    using CEntry = std::variant<CChange, CErasure, CDbVariables>;
    using CStep = std::vector<CEntry>;

    void Note(CEntry entry);
    int Replay(std::vector<CStep>& from, std::vector<CStep>& to, int nSteps);
    // Each brings the state back that the entry holds and gives an entry of what was there instead.
    CEntry Restore(const CChange& change);
    CEntry Restore(const CErasure& erasure);
    CEntry Restore(const CDbVariables& variables);
    void EndRestoring(CDbStub& stub, bool bErasureChanged);

    AcDbDatabase& m_database;
    bool m_bRecording = false;
    std::vector<CStep> m_arDone, m_arUndone; ///< the step under way is the last one done
};
