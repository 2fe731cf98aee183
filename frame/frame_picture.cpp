#include "frame/frame_picture.h"

#include "commands/sheet_layout.h"
#include "drawing/polyline_vertices.h"
#include "drawing/styles.h"
#include "frame/frame_entity.h"
#include "frame/sheet_area.h"

namespace {
constexpr double g_dRuleBelowTop = 12.5;
constexpr double g_dLabelSize = 3.8;
constexpr double g_dValueSize = 3.0;
constexpr double g_dColon = 11.0;    // behind a label's start
constexpr double g_dValueGap = 2.0;  // behind the colon
constexpr double g_dLeftLabel = 2.0; // from the sheet's edge
constexpr double g_dRightLabel = 80.0;
constexpr double g_dStripShift = 30.0; // the title strip's place at the left
constexpr double g_dSignatureDrop = 5.8;
constexpr double g_dRuleDrop = 0.4; // of a rule below its baseline

/// Writes the frame's texts; x and y count from the sheet's top left corner.
class CTexts {
public:
    CTexts(CFrameSink& sink, const CBRENFrame& frame, const CFrameForm& form)
        : m_sink(sink)
        , m_frame(frame)
        , m_form(form) {}

    void Heading() const;
    void ProjectLines() const;
    void SignatureLine() const;

private:
    AcGePoint3d At(double x, double y) const { return m_frame.m_ptBase + AcGeVector3d(x, y, 0.0); }
    void Text(double x, double y, const CString& strText) const { m_sink.Text(At(x, y), strText); }
    /// "label:value", label and colon in the size of labels.
    void Entry(double x, double y, const char* pLabel, double dValueSize, const CString& strValue) const;
    void Rule(double x, double dLength) const;
    /// A value centred over a rule of the signature line.
    void ValueOverRule(double x, double dLength, const CString& strValue) const;
    void Signature(double x, const char* pLabel, Adesk::Int32 bShown, const CString& strName) const;
    void Date(double x) const;
    /// One number of the date over its rule, with the word behind it; gives the word's end.
    double DatePart(double x, double dLength, Adesk::Int16 nValue, const char* pWord) const;

    CFrameSink& m_sink;
    const CBRENFrame& m_frame;
    const CFrameForm& m_form;
};

constexpr double g_dSignatureLine = -g_dAreaHeight - g_dSignatureDrop;

void CTexts::Heading() const {
    AcGiTextStyle style;
    SetupHeadingTextStyle(style);
    // Set as for a text of height 8, though its size is the style's.
    m_sink.Cell({At(0.0, 10.0), g_dAreaWidth, 10.0, 8.0, "三轴剪切试验成果图表"}, style);
}

void CTexts::Entry(double x, double y, const char* pLabel, double dValueSize, const CString& strValue) const {
    g_ChartTextStyle.setTextSize(g_dLabelSize);
    Text(x, y, pLabel);
    Text(x + g_dColon, y, ":");
    g_ChartTextStyle.setTextSize(dValueSize);
    Text(x + g_dColon + g_dValueGap, y, strValue);
}

void CTexts::ProjectLines() const {
    const double dShift = m_frame.m_nGCBZ == g_nStandardWithStrip ? g_dStripShift : 0.0;
    const double dLeft = dShift + g_dLeftLabel, dRight = dShift + g_dRightLabel;
    CString strDepth;
    strDepth.Format("%sm", m_frame.m_strQYSD.GetString());
    Entry(dLeft, -5.7, "工程编号", g_dValueSize, m_frame.m_strGCBH);
    Entry(dLeft, -11.5, "工程名称", g_dLabelSize, m_frame.m_strGCMC);
    Entry(dRight, -11.5, "试验方法", g_dLabelSize, m_frame.m_strSYFF);
    Entry(dLeft, -17.3, "试样编号", g_dValueSize, m_frame.m_strZKBH + "-" + m_frame.m_strQYBH);
    Entry(dRight, -17.3, "取土深度", g_dValueSize, strDepth);
}

void CTexts::Rule(double x, double dLength) const {
    m_sink.Rule(At(x, g_dSignatureLine - g_dRuleDrop), At(x + dLength, g_dSignatureLine - g_dRuleDrop));
}

void CTexts::ValueOverRule(double x, double dLength, const CString& strValue) const {
    m_sink.Cell({At(x, g_dSignatureLine + g_dLabelSize), dLength, g_dLabelSize, g_dLabelSize, strValue},
                g_ChartTextStyle);
}

void CTexts::Signature(double x, const char* pLabel, Adesk::Int32 bShown, const CString& strName) const {
    constexpr double dRule = 13.0;
    const double dRuleStart = x + 6.0;
    Text(x, g_dSignatureLine, pLabel);
    Rule(dRuleStart, dRule);
    if (bShown) ValueOverRule(dRuleStart, dRule, strName);
}

double CTexts::DatePart(double x, double dLength, Adesk::Int16 nValue, const char* pWord) const {
    Rule(x, dLength);
    if (m_frame.m_bRQ && (nValue != 0 || m_form.m_bZeroDate)) {
        CString strValue;
        strValue.Format("%d", nValue);
        g_ChartTextStyle.setTextSize(g_dValueSize);
        ValueOverRule(x, dLength, strValue);
        g_ChartTextStyle.setTextSize(g_dLabelSize);
    }
    Text(x + dLength, g_dSignatureLine, pWord);
    return x + dLength + 3.0;
}

void CTexts::Date(double x) const {
    x = DatePart(x, 10.0, m_frame.m_nYear, "年");
    x = DatePart(x, 6.5, m_frame.m_nMonth, "月");
    DatePart(x, 6.5, m_frame.m_nDay, "日");
}

void CTexts::SignatureLine() const {
    g_ChartTextStyle.setTextSize(g_dLabelSize);
    if (m_frame.m_bWCDW) Text(2.0, g_dSignatureLine, m_frame.m_sWCDW);
    Signature(56.0, "试验", m_frame.m_bSYZ, m_frame.m_sSYZ);
    Signature(88.0, "检查", m_frame.m_bJCZ, m_frame.m_sJCZ);
    Date(118.0);
    Text(156.0, g_dSignatureLine, "图号"); // its rule stays empty
    Rule(162.0, 10.0);
}
} // namespace

void DescribeFrameLines(CFrameSink& sink, const CBRENFrame& frame) {
    if (frame.m_nGCBZ == g_nStandardWithStrip) return;
    const AcGePoint3d& ptBase = frame.m_ptBase;
    const double dBorder = frame.m_dBorderWidth;
    // It ends half its width above its start, which closes the corner.
    const AcGePoint2d corners[] = {{ptBase.x, ptBase.y},
                                   {ptBase.x + g_dAreaWidth, ptBase.y},
                                   {ptBase.x + g_dAreaWidth, ptBase.y - g_dAreaHeight},
                                   {ptBase.x, ptBase.y - g_dAreaHeight},
                                   {ptBase.x, ptBase.y + dBorder / 2.0}};
    AcDbPolyline border(5);
    for (const AcGePoint2d& ptCorner : corners)
        AppendVertex(border, {ptCorner, 0.0, dBorder, dBorder});
    sink.Outline(border);
    sink.Rule(ptBase + AcGeVector3d(0.0, -g_dRuleBelowTop, 0.0),
              ptBase + AcGeVector3d(g_dAreaWidth, -g_dRuleBelowTop, 0.0));
}

void DescribeFrameTexts(CFrameSink& sink, const CBRENFrame& frame, const CFrameForm& form) {
    const CTexts texts(sink, frame, form);
    const bool bStrip = frame.m_nGCBZ == g_nStandardWithStrip;
    if (!bStrip) texts.Heading();
    texts.ProjectLines();
    if (!bStrip) texts.SignatureLine();
}
