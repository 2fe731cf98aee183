#pragma once

#include "host/files/bytes.h"
#include "host/files/drawing_text.h"
#include "host/files/dxf_reader.h"
#include "platform/acad/db_object_id.h"
#include "platform/acad/geometry.h"

#include <vector>

/// The handle that a tag is; null for none.
AcDbHandle DxfHandle(const CDxfTag& tag);

/// A record of a DXF file: group 0 with its type, and the groups up to the next one. What stands in groups of
/// applications and embedded objects is left out.
struct CDxfRecord {
    std::string_view m_type;
    std::size_t m_nPlace = 0;
    std::vector<CDxfTag> m_arTags;
    std::vector<CDxfTag> m_arXData;           ///< from the first group 1001 on
    std::vector<std::string_view> m_arGroups; ///< of applications: their names, with the brace
    const CDrawingText* m_pEncoding = nullptr;

    // The first value under a code, or what stands for it where there is none.
    const CDxfTag* Find(int nCode) const; ///< null for none
    AcDbHandle Handle() const;            ///< the record's own; null for none
    std::wstring Text(int nCode, const std::wstring& strElse = {}) const;
    double Real(int nCode, double dElse = 0.0) const;
    std::int64_t Whole(int nCode, std::int64_t nElse = 0) const;
    bool HasFlag(int nCode, std::int64_t nFlag) const { return (Whole(nCode) & nFlag) != 0; }
    /// The point whose x has this code; a missing coordinate is 0.
    AcGePoint3d Point(int nCode) const;

    // All values under a code, in their order.
    std::vector<double> Reals(int nCode) const;
    std::vector<AcGePoint3d> Points(int nCode) const;

    /// The binary data under a code that follow a tag in a row; what is no pair of hexadecimal digits ends
    /// them.
    CBytes BytesBehind(const CDxfTag& tag, int nCode) const;
};

/// Takes the records out of a file.
class CDxfRecords {
public:
    /// Throws CDxfFailure for a file that does not begin with a record.
    explicit CDxfRecords(CDxfReader& reader);
    /// The encoding of texts, also of records that are there already.
    void SetEncoding(const CDrawingText& encoding) { m_encoding = encoding; }
    /// The next record. False at the end of the bytes.
    bool Next(CDxfRecord* pRecord);
    [[noreturn]] void Fail(const CDxfRecord& record, const std::string& strWhat) const {
        m_reader.Fail(record.m_nPlace, strWhat);
    }

private:
    void SkipApplicationGroup(CDxfRecord& record);

    CDxfReader& m_reader;
    CDrawingText m_encoding{g_nUtf8Page, CDrawingText::CCarets::Escapes};
    CDxfTag m_tag; ///< the one behind the record taken last
    bool m_bTag;
};
