#include "platform/acad/undo_log.h"

#include "platform/acad/db_database.h"
#include "platform/acad/db_stub.h"
#include "platform/windows/host_assert.h"

#include <utility>

void CUndoLog::BeginStep() {
    m_bRecording = true;
    if (m_arDone.empty() || !m_arDone.back().empty()) m_arDone.emplace_back();
}

void CUndoLog::Note(CEntry entry) {
    if (!m_bRecording) return;
    m_arUndone.clear();
    m_arDone.back().push_back(std::move(entry));
}

void CUndoLog::NoteAppended(CDbStub& stub) {
    Note(CErasure{&stub, true});
}

void CUndoLog::NoteErasure(CDbStub& stub) {
    Note(CErasure{&stub, stub.m_bErased});
}

void CUndoLog::NoteChanged(CDbStub& stub, CDbRecord before) {
    if (before != RecordOf(*stub.m_pObject, AcDb::kUndoFiler)) Note(CChange{&stub, std::move(before)});
}

void CUndoLog::NoteVariables(const CDbVariables& before) {
    Note(before);
}

int CUndoLog::Replay(std::vector<CStep>& from, std::vector<CStep>& to, int nSteps) {
    if (!m_arDone.empty() && m_arDone.back().empty()) m_arDone.pop_back();
    m_bRecording = false; // what is brought back is no change of its own
    int nReplayed = 0;
    for (; nReplayed < nSteps && !from.empty(); ++nReplayed) {
        const CStep step = std::exchange(from.back(), {});
        from.pop_back();
        CStep inverse;
        for (auto entry = step.rbegin(); entry != step.rend(); ++entry)
            inverse.push_back(std::visit([this](const auto& kind) { return Restore(kind); }, *entry));
        to.push_back(std::move(inverse));
    }
    BeginStep();
    return nReplayed;
}

CUndoLog::CEntry CUndoLog::Restore(const CChange& change) {
    CDbStub& stub = *change.m_pStub;
    HOST_ASSERT(!stub.IsOpen(), "nothing is open while a step is undone");
    stub.m_bWriting = stub.m_bUndoing = true;
    CEntry inverse = CChange{&stub, RecordOf(*stub.m_pObject, AcDb::kUndoFiler)};
    CRecordReader reader(AcDb::kUndoFiler, change.m_record);
    stub.m_pObject->dwgIn(&reader);
    EndRestoring(stub, false);
    return inverse;
}

CUndoLog::CEntry CUndoLog::Restore(const CErasure& erasure) {
    CDbStub& stub = *erasure.m_pStub;
    CEntry inverse = CErasure{&stub, stub.m_bErased};
    HOST_ASSERT(!stub.IsOpen(), "nothing is open while a step is undone");
    stub.m_bWriting = stub.m_bUndoing = true;
    stub.m_bErased = erasure.m_bErased;
    EndRestoring(stub, true);
    return inverse;
}

void CUndoLog::EndRestoring(CDbStub& stub, bool bErasureChanged) {
    stub.m_bModified = true;
    stub.m_bErasureChanged = bErasureChanged;
    stub.m_pObject->EndWriting();
    stub.m_bUndoing = false;
}

CUndoLog::CEntry CUndoLog::Restore(const CDbVariables& variables) {
    CEntry inverse = m_database.Variables();
    m_database.SetVariables(variables);
    return inverse;
}
