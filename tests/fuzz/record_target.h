#pragma once
// The target of an entity class's record: it may hold anything, and what was read of it must be an entity
// that is written and read back as it is.

#include "tests/fuzz/record_input.h"

#include <cstdio>
#include <cstdlib>

template <class T>
CDbRecord WrittenAgain(const CDbRecord& record, AcDb::FilerType type) {
    T object;
    CRecordReader reader(type, record);
    if (object.dwgIn(&reader) != Acad::eOk || !reader.IsAtEnd()) {
        std::fputs("what an entity writes it does not read to its end\n", stderr);
        std::abort();
    }
    return RecordOf(object, type);
}

template <class T>
int ReadRecord(std::span<const std::uint8_t> bytes) {
    static const CRecordInputs inputs;
    const CRecordInput input = inputs.Decode(bytes);
    T object;
    // An undo reads over what the object holds.
    for (int nLeft = input.m_type == AcDb::kUndoFiler ? 2 : 1; nLeft > 0; --nLeft) {
        CRecordReader reader(input.m_type, input.m_record);
        object.dwgIn(&reader);
    }
    const CDbRecord record = RecordOf(object, input.m_type);
    if (WrittenAgain<T>(record, input.m_type) != record) {
        std::fputs("an entity that is written and read is not what it was\n", stderr);
        std::abort();
    }
    return 0;
}
