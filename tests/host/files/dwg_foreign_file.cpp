#include "tests/host/files/dwg_foreign_file.h"

#include "host/files/dwg_blocks.h"
#include "host/files/dwg_curves.h"
#include "host/files/dwg_dictionaries.h"
#include "host/files/dwg_drawing_writer.h"
#include "host/files/dwg_table_records.h"
#include "tests/support/foreign/renumbering.h"

namespace {

/// Where an object of a new drawing stands in a file of the other program.
std::uint64_t Elsewhere(std::uint64_t nHandle) {
    return nHandle + 0x21;
}

class CForeignBuilder {
public:
    explicit CForeignBuilder(bool bNeighbours)
        : m_bNeighbours(bNeighbours)
        , m_file(Renumbered(DwgFileOf(AcDbDatabase()), Elsewhere)) {}

    CDwgFile Build() {
        SetVariables();
        ChangeTables();
        AddChain();
        AddPolyline();
        AddLine(CForeign::s_nLoose, Common(0, 0));
        AddObjects();
        return std::move(m_file);
    }

private:
    static constexpr std::uint64_t s_nLayer0 = 0x31;

    void SetVariables() {
        m_file.m_identity = {15, 0x0F17, g_nDwgAnsi1252};
        m_file.m_nSaves = 7;
        m_file.m_bMetric = false;
        m_file.m_arPreview = {{CDwgPreviewItem::s_nBitmap, {1, 2, 3}}};
        CDwgVariables& vars = m_file.m_variables;
        vars.m_nLunits = 4;
        vars.m_dimension.m_dDimscale = 2.5;
        vars.m_paper.m_dElevation = 3.0;
        vars.m_strFingerprint = "{GUID}";
        vars.m_hHandseed.m_nValue = 0x400;
        m_file.m_arClasses.push_back(
            {CForeign::s_nMarkClass, 0x401, "Mark\xE9s", "CForeignMark", "FMARK", true, true});
        m_file.m_arClasses.push_back(
            {CForeign::s_nUnknownClass, 0, "Other", "COther", "OTHER", false, false});
    }

    template <class Value, class File>
    void Put(std::uint16_t nType, std::uint64_t nHandle, const Value& value, File file) {
        m_file.m_contents[nHandle] = WriteDwgRecord(DwgRecordOf(nType, nHandle, value, file));
    }

    template <class Value, class File, class Change>
    void ChangeRecord(std::uint64_t nHandle, File file, Change change) {
        const CDwgRecord record = ReadDwgRecord(m_file.m_contents.at(nHandle), nHandle);
        CDwgRecordReader reader(record);
        Value value;
        file(reader, value);
        change(value);
        Put(record.m_nType, nHandle, value, file);
    }

    void ChangeTables() {
        ChangeRecord<CDwgLayerRecord>(s_nLayer0, DWG_FILED(FileLayer), [](CDwgLayerRecord& layer) {
            layer.m_nFlags = CDwgLayerRecord::s_nLocked | CDwgLayerRecord::s_nFrozen | 5 << 5; // not plotted
        });
        ChangeRecord<CDwgBlockHeader>(CForeign::s_nModelSpace, DWG_FILED(FileBlockHeader),
                                      [](CDwgBlockHeader& header) {
                                          header.m_strDescription = "All";
                                          header.m_arPreview = {4, 5};
                                          header.m_hFirst = SoftPointer(CForeign::s_nCircle);
                                          header.m_hLast = SoftPointer(CForeign::s_nPolyline);
                                      });
        ChangeRecord<CDwgDictionary>(0x2E, DWG_FILED(FileDictionary), [](CDwgDictionary& groups) {
            groups.m_arNames = {"Gr\xFCn"};
            groups.m_arItems = {SoftOwner(CForeign::s_nGroup)};
        });
    }

    CDwgEntityCommon Common(std::uint64_t nPrevious, std::uint64_t nNext) const {
        CDwgEntityCommon common;
        common.m_nPlace = g_nDwgInModelSpace;
        common.m_bNeighbours = m_bNeighbours && nPrevious && nNext;
        common.m_hPrevious = SoftPointer(nPrevious);
        common.m_hNext = SoftPointer(nNext);
        common.m_hLayer = HardPointer(s_nLayer0);
        common.m_nLineweight = 7;
        common.m_dLinetypeScale = 0.5;
        common.m_nInvisible = 1;
        return common;
    }

    /// An entity whose own part makes sense to the other program only.
    void AddOpaque(std::uint16_t nType, std::uint64_t nHandle, const CDwgEntityCommon& common,
                   const std::vector<CDwgHandle>& handles = {}) {
        Put(nType, nHandle, common, [&handles](auto& io, auto& value) {
            FileEntityCommon(io, value);
            std::uint8_t nPart = 0xA5;
            io.RC(nPart);
            io.BB(nPart);
            if constexpr (!std::decay_t<decltype(io)>::s_bReads) io.Handles(handles, handles.size());
        });
    }

    void AddLine(std::uint64_t nHandle, const CDwgEntityCommon& common) {
        CDwgLine line;
        line.m_ptEnd = {1.0, 2.0, 0.0};
        line.m_dThickness = 3.0;
        line.m_vecExtrusion = {0.0, 1.0, 0.0};
        Put(g_nDwgLine, nHandle, line, [&common](auto& io, auto& value) {
            FileEntityCommon(io, common);
            FileLine(io, value);
        });
    }

    void AddChain() {
        AddOpaque(0x12, CForeign::s_nCircle, Common(0, CForeign::s_nLine));
        CDwgEntityCommon line = Common(CForeign::s_nCircle, CForeign::s_nHatch);
        line.m_hExtensions = HardOwner(CForeign::s_nExtensions);
        AddLine(CForeign::s_nLine, line);
        // To a line, to the end of a block, and to nothing.
        AddOpaque(0x4E, CForeign::s_nHatch, Common(CForeign::s_nLine, CForeign::s_nMark),
                  {SoftPointer(CForeign::s_nLine), HardPointer(0x42), SoftPointer(0x3F0), HardPointer(0)});
        CDwgEntityCommon mark = Common(CForeign::s_nHatch, CForeign::s_nPolyline);
        mark.m_bGraphics = true;
        mark.m_arGraphics = {8, 0, 0, 0, 0, 0, 0, 0};
        AddOpaque(CForeign::s_nMarkClass, CForeign::s_nMark, mark, {HardOwner(CForeign::s_nXrecord)});
    }

    void AddPolyline() {
        AddOpaque(0x0F, CForeign::s_nPolyline, Common(CForeign::s_nMark, 0),
                  {SoftPointer(CForeign::s_nVertex1), SoftPointer(CForeign::s_nVertex2),
                   HardOwner(CForeign::s_nSequenceEnd)});
        const auto part = [this](std::uint64_t nPrevious, std::uint64_t nNext) {
            CDwgEntityCommon common = Common(nPrevious, nNext);
            common.m_nPlace = g_nDwgOwnerGiven;
            common.m_bNeighbours = false;
            common.m_hOwner = SoftPointer(CForeign::s_nPolyline);
            return common;
        };
        AddOpaque(0x0A, CForeign::s_nVertex1, part(0, CForeign::s_nVertex2));
        AddOpaque(0x0A, CForeign::s_nVertex2, part(CForeign::s_nVertex1, 0));
        Put(g_nDwgSequenceEnd, CForeign::s_nSequenceEnd, part(0, 0), DWG_FILED(FileEntityCommon));
    }

    /// An object whose own part makes sense to the other program only.
    void AddObject(std::uint16_t nType, std::uint64_t nHandle, std::uint64_t nOwner,
                   const std::vector<CDwgHandle>& handles = {}) {
        CDwgObjectCommon common;
        common.m_hOwner = SoftPointer(nOwner);
        if (nOwner) common.m_arReactors = {common.m_hOwner};
        Put(nType, nHandle, common, [&handles](auto& io, auto& value) {
            FileObjectCommon(io, value);
            std::uint8_t nPart = 0x5A;
            io.RC(nPart);
            if constexpr (!std::decay_t<decltype(io)>::s_bReads) io.Handles(handles, handles.size());
        });
    }

    void AddObjects() {
        CDwgDictionary extensions;
        extensions.m_hOwner = SoftPointer(CForeign::s_nLine);
        extensions.m_nCloning = 0;
        extensions.m_arNames = {"DATA"};
        extensions.m_arItems = {HardOwner(CForeign::s_nXrecord)};
        Put(g_nDwgDictionary, CForeign::s_nExtensions, extensions, DWG_FILED(FileDictionary));
        AddObject(0x4F, CForeign::s_nXrecord, CForeign::s_nExtensions, {SoftPointer(CForeign::s_nCircle)});
        AddObject(0x48, CForeign::s_nGroup, 0x2E, {HardPointer(CForeign::s_nCircle)});
        AddObject(CForeign::s_nUnknownClass, CForeign::s_nUnknown, CForeign::s_nUnknown); // owns itself
        AddObject(CForeign::s_nStrangeType, CForeign::s_nStrange, 0);
    }

    bool m_bNeighbours;
    CDwgFile m_file;
};

} // namespace

CDwgFile ForeignFile(bool bNeighbours) {
    return CForeignBuilder(bNeighbours).Build();
}

std::map<std::uint64_t, CDwgRecord> RecordsOf(const CDwgFile& file) {
    std::map<std::uint64_t, CDwgRecord> records;
    for (const auto& [nHandle, content] : file.m_contents) {
        CDwgRecord record = ReadDwgRecord(content, nHandle);
        for (CDwgHandle& handle : record.m_arHandles)
            if (handle.m_nCode > CDwgHandle::s_nHardPointer) handle = SoftPointer(handle.Target(nHandle));
        records.emplace(nHandle, std::move(record));
    }
    return records;
}
