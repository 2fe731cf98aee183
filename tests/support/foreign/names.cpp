#include "tests/support/foreign/names.h"

#include "host/files/drawing_text.h"
#include "host/files/dwg_table_records.h"
#include "host/files/dwg_texts.h"
#include "tests/support/foreign/records.h"

#include <array>
#include <cstdio>
#include <functional>
#include <type_traits>

namespace {

/// An entity as its common part and its own one.
template <class Part>
struct CFiledEntity {
    CDwgEntityCommon m_common;
    Part m_part;
};

/// Visits the objects of a type.
template <class Visit>
void ForEach(CDwgFile& file, std::uint16_t nType, Visit visit) {
    for (const auto& [nHandle, content] : file.m_contents)
        if (ReadDwgRecord(content, nHandle).m_nType == nType) visit(nHandle);
}

using CTextChange = std::function<std::string(const std::string&)>;

/// Changes all texts of a file that need not be plain.
class CTextsOfFile {
public:
    CTextsOfFile(CDwgFile& file, CTextChange change)
        : m_file(file)
        , m_change(std::move(change)) {}

    void Change() {
        Texts<CDwgTextEntity>(g_nDwgText, DWG_FILED(FileText), [](auto&) {});
        Texts<CDwgAttributeDefinitionEntity>(g_nDwgAttributeDefinition, DWG_FILED(FileAttributeDefinition),
                                             [this](auto& definition) {
                                                 Change(definition.m_strTag);
                                                 Change(definition.m_strPrompt);
                                             });
        Names<CDwgLayerRecord>(g_nDwgLayer, DWG_FILED(FileLayer));
        Names<CDwgStyleRecord>(g_nDwgStyle, DWG_FILED(FileStyle));
    }

private:
    void Change(std::string& strText) const { strText = m_change(strText); }

    template <class Part, class File, class More>
    void Texts(std::uint16_t nType, File filed, More more) {
        const auto entity = [filed](auto& io, auto& value) {
            FileEntityCommon(io, value.m_common);
            filed(io, value.m_part);
        };
        ForEach(m_file, nType, [&](std::uint64_t nHandle) {
            ChangeObject<CFiledEntity<Part>>(m_file, nHandle, entity, [&](auto& value) {
                Change(value.m_part.m_strText);
                more(value.m_part);
            });
        });
    }

    template <class Record, class File>
    void Names(std::uint16_t nType, File filed) {
        ForEach(m_file, nType, [&](std::uint64_t nHandle) {
            ChangeObject<Record>(m_file, nHandle, filed, [this](Record& record) {
                Change(record.m_strName);
                if constexpr (std::is_same_v<Record, CDwgStyleRecord>) {
                    Change(record.m_strFont);
                    Change(record.m_strBigFont);
                }
            });
        });
    }

    CDwgFile& m_file;
    const CTextChange m_change;
};

/// A text of page 936 with the escape \M+5XXXX for each character of two bytes.
std::string Escaped(const std::string& strText) {
    std::string strEscaped;
    for (std::size_t i = 0; i < strText.size(); ++i) {
        const auto nLead = static_cast<unsigned char>(strText[i]);
        if (nLead < 0x81 || i + 1 == strText.size()) {
            strEscaped += strText[i];
            continue;
        }
        std::array<char, 9> code{};
        std::snprintf(code.data(), code.size(), "\\M+5%02X%02X", nLead,
                      static_cast<unsigned>(static_cast<unsigned char>(strText[++i])));
        strEscaped += code.data();
    }
    return strEscaped;
}

std::uint64_t AddLayer(CDwgFile& file) {
    const std::uint64_t nTable = file.m_variables.m_roots.m_hLayers.m_nValue, nLayer = TakeHandle(file);
    CDwgLayerRecord layer;
    layer.m_hOwner = SoftPointer(nTable);
    layer.m_strName = g_pForeignLayer;
    layer.m_hPlotStyle = HardPointer(0);
    layer.m_hLinetype = file.m_variables.m_roots.m_hContinuous;
    file.m_contents[nLayer] = WriteDwgRecord(DwgRecordOf(g_nDwgLayer, nLayer, layer, DWG_FILED(FileLayer)));
    ChangeObject<CDwgControl>(
        file, nTable, [](auto& io, auto& table) { FileControl(io, table, g_nDwgLayerControl); },
        [nLayer](CDwgControl& table) { table.m_arRecords.push_back(SoftOwner(nLayer)); });
    return nLayer;
}

} // namespace

void MakeWestern(CDwgFile& file) {
    const CDrawingText chinese(g_nChinesePage), western(g_nWesternPage);
    CTextsOfFile(file, [&](const std::string& strText) {
        return western.Encode(chinese.Decode(strText));
    }).Change();
    file.m_identity.m_nCodePage = g_nDwgAnsi1252;
}

void EscapeTexts(CDwgFile& file) {
    CTextsOfFile(file, Escaped).Change();
}

void GiveOtherNames(CDwgFile& file) {
    const std::uint64_t nLayer = AddLayer(file);
    for (const std::uint64_t nHandle : ModelSpaceOf(file)) {
        CEntityRecord entity = EntityAt(file, nHandle);
        entity.m_common.m_hLayer = HardPointer(nLayer);
        PutEntity(file, nHandle, entity);
    }
    ForEach(file, g_nDwgStyle, [&file](std::uint64_t nHandle) {
        ChangeObject<CDwgStyleRecord>(file, nHandle, DWG_FILED(FileStyle), [](CDwgStyleRecord& style) {
            if (style.m_strName != "Standard") style.m_strName = g_pForeignStyle;
        });
    });
}
