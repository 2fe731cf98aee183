#include "host/files/dwg_value_writer.h"

#include "platform/acad/filed_text.h"
#include "platform/acad/memory_filer.h"

namespace {

CDwgHandle HandleOf(CFiledId::CKind kind, std::uint64_t nHandle) {
    switch (kind) {
    case CFiledId::CKind::SoftOwnership:
        return SoftOwner(nHandle);
    case CFiledId::CKind::HardOwnership:
        return HardOwner(nHandle);
    case CFiledId::CKind::HardPointer:
        return HardPointer(nHandle);
    default:
        return SoftPointer(nHandle);
    }
}

} // namespace

void WriteDwgValues(CDwgRecordWriter& io, const CDbRecord& record, const CDrawingText& text,
                    const CDwgHandleOf& handleOf) {
    CRecordReader reader(AcDb::kFileFiler, record);
    const auto next = [&reader]<class T>(T value, Acad::ErrorStatus (CRecordReader::*read)(T*)) {
        (reader.*read)(&value);
        return value;
    };
    for (const CFiledValue& value : record.m_arValues) {
        switch (value.m_kind) {
        case CFiledValue::CKind::Boolean:
            io.B(next(Adesk::Boolean(), &CRecordReader::readBoolean) != Adesk::kFalse);
            break;
        case CFiledValue::CKind::Int8:
            io.RC(static_cast<std::uint8_t>(next(Adesk::Int8(), &CRecordReader::readInt8)));
            break;
        case CFiledValue::CKind::Int16:
            io.BS(next(Adesk::Int16(), &CRecordReader::readInt16));
            break;
        case CFiledValue::CKind::Int32:
            io.BL(next(Adesk::Int32(), &CRecordReader::readInt32));
            break;
        case CFiledValue::CKind::Double:
            io.BD(next(0.0, &CRecordReader::readDouble));
            break;
        case CFiledValue::CKind::String: {
            std::wstring strText;
            ReadText(&reader, strText);
            io.T(text.Encode(strText));
            break;
        }
        case CFiledValue::CKind::Bytes: {
            CBytes bytes(value.m_nBytes);
            reader.readBytes(bytes.data(), value.m_nBytes);
            io.Raw(bytes, bytes.size());
            break;
        }
        }
    }
    const std::size_t nIds = record.m_pForeign ? record.m_nForeignIds : record.m_arIds.size();
    for (std::size_t i = 0; i < nIds; ++i)
        io.Handle(HandleOf(record.m_arIds[i].m_kind, handleOf(record.m_arIds[i].m_id)));
}
