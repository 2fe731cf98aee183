#include "host/files/dxf_read.h"

#include "host/files/block_check.h"
#include "host/files/dxf_header.h"
#include "host/files/dxf_read_entities.h"
#include "host/files/dxf_read_objects.h"
#include "host/files/dxf_read_tables.h"

namespace {

/// A file on its way into a drawing, section by section.
class CDxfReading {
public:
    CDxfReading(std::string_view bytes, AcDbDatabase& database, const CReadGoesOn& fnGoesOn)
        : m_bytes(bytes)
        , m_fnGoesOn(fnGoesOn)
        , m_pReader(OpenDxf(bytes))
        , m_records(*m_pReader)
        , m_drawing(database)
        , m_entities(m_drawing)
        , m_objects(m_drawing) {}

    CDxfLosses Read() {
        while (Next()) {
            if (m_record.m_type == "EOF") {
                m_header.Apply(m_drawing);
                m_entities.GiveProxyData();
                if (const std::optional<CBlockFault> fault = FindBlockFault(m_drawing.Database()))
                    throw CDxfFailure("block " + fault->m_strBlock, fault->m_strWhat);
                m_drawing.Database().SetModified(false);
                return m_drawing.Losses();
            }
            if (m_record.m_type != "SECTION") m_records.Fail(m_record, "a section is expected");
            ReadSection(m_record.Text(2));
        }
        m_records.Fail(m_record, "the file ends before its end is told");
    }

private:
    bool Next() {
        if (!m_records.Next(&m_record)) return false;
        const auto nDone = static_cast<std::size_t>(m_record.m_type.data() - m_bytes.data()); // it lies there
        CheckReadGoesOn(m_fnGoesOn, nDone, m_bytes.size());
        return true;
    }

    void ReadSection(const std::wstring& strName) {
        if (strName == L"HEADER") ReadHeader();
        const CDxfRecord section = m_record;
        while (Next()) {
            if (m_record.m_type == "ENDSEC") return m_entities.End();
            if (strName == L"CLASSES") ReadClass();
            if (strName == L"TABLES") ReadDxfTableRecord(m_record, m_drawing);
            if (strName == L"BLOCKS") ReadBlocks();
            if (strName == L"ENTITIES") m_entities.Add(m_record, Space());
            if (strName == L"OBJECTS") m_objects.Add(m_record);
        }
        m_records.Fail(section, "a section that does not end");
    }

    void ReadHeader() {
        m_header = CDxfHeader(m_record);
        m_records.SetEncoding(m_header.Encoding());
    }

    void ReadClass() {
        m_drawing.AddClass(
            {m_record.Text(2), m_record.Text(1), m_record.Text(3), static_cast<int>(m_record.Whole(90))});
    }

    AcDbObjectId Space() {
        return m_drawing.Block(m_record.Whole(67) != 0 ? ACDB_PAPER_SPACE : ACDB_MODEL_SPACE);
    }

    void ReadBlocks() {
        if (m_record.m_type == "BLOCK") return BeginBlock();
        if (m_record.m_type == "ENDBLK") {
            m_entities.End();
            return m_idBlock.setNull();
        }
        if (m_idBlock.isNull()) m_records.Fail(m_record, "a block is expected");
        m_entities.Add(m_record, m_idBlock);
    }

    void BeginBlock() {
        constexpr int nExternal = 4;
        if (m_record.HasFlag(70, nExternal)) m_drawing.Lose("BLOCK of another file");
        m_idBlock = m_drawing.Block(m_record.Text(2));
        if (m_idBlock.isNull()) m_records.Fail(m_record, "a block without a name");
        const CDbOpen<AcDbBlockTableRecord> block(m_idBlock, AcDb::kForWrite);
        block->setOrigin(m_record.Point(10));
    }

    std::string_view m_bytes;
    const CReadGoesOn& m_fnGoesOn;
    std::unique_ptr<CDxfReader> m_pReader;
    CDxfRecords m_records;
    CDxfDrawing m_drawing;
    CDxfEntities m_entities;
    CDxfObjects m_objects;
    CDxfHeader m_header;
    CDxfRecord m_record;
    AcDbObjectId m_idBlock; ///< the one under way
};

} // namespace

CDxfLosses ReadDxf(std::string_view bytes, AcDbDatabase& database, const CReadGoesOn& fnGoesOn) {
    return CDxfReading(bytes, database, fnGoesOn).Read();
}
