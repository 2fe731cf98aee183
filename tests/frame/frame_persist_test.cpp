#include "frame/frame_entity.h"
#include "platform/acad/memory_filer.h"
#include "tests/support/filer_log.h"

#include <gtest/gtest.h>

namespace {

/// A frame whose every field differs from its default, numbered in the order of the record.
void FillWithNumbers(CBRENFrame& frame) {
    frame.m_ptBase.set(1, -1, 0.5);
    frame.m_vecGripOffset.set(9, 9, 9);
    frame.m_dTextHeight = 2;
    frame.m_dBorderWidth = 3;
    frame.m_nPolylineMode = 4;
    frame.m_nYear = 5;
    frame.m_nMonth = 6;
    frame.m_nDay = 7;
    frame.m_nGCSY = 8;
    frame.m_nGCBZ = 9;
    frame.m_strZKBH = "10";
    frame.m_strQYBH = "11";
    frame.m_strGCMC = "十二";
    frame.m_strSYFF = "13";
    frame.m_strQYSD = "14";
    frame.m_strGCBH = "15";
    frame.m_sJCZ = "16";
    frame.m_sReserved = "17";
    frame.m_sWCDW = "18";
    frame.m_sSYZ = "19";
    frame.m_bRQ = 22;
    frame.m_bJCZ = 23;
    frame.m_bSYZ = 24;
    frame.m_bWCDW = 25;
    frame.m_bReserved = 26;
}

/// The words of the frame's own part of the record.
std::vector<std::string> Words(const CBRENFrame& frame) {
    CFilerLog whole, base;
    EXPECT_EQ(frame.dwgOutFields(&whole), Acad::eOk);
    EXPECT_EQ(frame.AcDbEntity::dwgOutFields(&base), Acad::eOk);
    const auto first = whole.Words().begin() + static_cast<std::ptrdiff_t>(base.Words().size());
    return {first, whole.Words().end()};
}

void Read(CBRENFrame& frame, const CDbRecord& record) {
    CRecordReader reader(AcDb::kCopyFiler, record);
    EXPECT_EQ(frame.dwgIn(&reader), Acad::eOk);
    EXPECT_TRUE(reader.IsAtEnd());
}

} // namespace

TEST(FrameRecord, HoldsItsValuesInThisOrder) {
    CBRENFrame frame;
    FillWithNumbers(frame);
    const std::vector<std::string> expected = {
        "Point3d 1",  "Double 2",   "Double 3",   "Int16 4",    "Int16 5",     "Int16 6",     "Int16 7",
        "Int32 8",    "Int16 9",    "String 10",  "String 11",  "String 十二", "String 13",   "String 14",
        "String 15",  "String 16",  "String 17",  "String 18",  "String 19",   "HardPointer", "HardPointer",
        "Boolean 22", "Boolean 23", "Boolean 24", "Boolean 25", "Boolean 26"};
    EXPECT_EQ(Words(frame), expected);
}

TEST(FrameRecord, BringsEveryFieldBackButTheGripOffset) {
    CBRENFrame frame;
    FillWithNumbers(frame);
    CBRENFrame copy;
    Read(copy, RecordOf(frame, AcDb::kCopyFiler));
    EXPECT_EQ(Words(copy), Words(frame));
    EXPECT_TRUE(copy.m_ptBase == frame.m_ptBase);
    EXPECT_TRUE(copy.m_vecGripOffset.isZeroLength());
}

TEST(FrameRecord, OfAStandardThatDrawsLittleKeepsEveryFieldAsItIs) {
    CBRENFrame untouched, copy;
    untouched.m_nGCBZ = 2;
    FillWithNumbers(copy);
    Read(copy, RecordOf(untouched, AcDb::kCopyFiler));
    EXPECT_EQ(Words(copy), Words(untouched)) << "fields that nobody set too";
    CBRENFrame filled;
    FillWithNumbers(filled);
    filled.m_nGCBZ = 2;
    Read(copy, RecordOf(filled, AcDb::kCopyFiler));
    EXPECT_EQ(Words(copy), Words(filled));
}

TEST(FrameRecord, TakesATextOfNinetyNineBytesAndCutsALongerOneAtACharacter) {
    CBRENFrame frame;
    const std::string strLongest = std::string(97, 'x') + "土";
    frame.m_strGCMC = strLongest.c_str();
    frame.m_sWCDW = std::string(100, '9').c_str();
    frame.m_sJCZ = (std::string(98, 'y') + "土").c_str();
    CBRENFrame copy;
    Read(copy, RecordOf(frame, AcDb::kCopyFiler));
    EXPECT_EQ(copy.m_strGCMC.View(), strLongest);
    EXPECT_EQ(copy.m_sWCDW.View(), std::string(99, '9'));
    EXPECT_EQ(copy.m_sJCZ.View(), std::string(98, 'y'));
}

TEST(FrameRecord, EndsWithTheStatusOfTheEntitysPart) {
    CBRENFrame frame;
    FillWithNumbers(frame);
    CDbRecord part = RecordOf(frame, AcDb::kCopyFiler);
    part.m_arBytes.resize(3);
    CRecordReader reader(AcDb::kCopyFiler, part);
    CBRENFrame copy;
    copy.m_nGCSY = 77;
    EXPECT_EQ(copy.dwgIn(&reader), Acad::eFilerError);
    EXPECT_EQ(copy.m_nGCSY, 77) << "nothing is read after it";
}

TEST(FrameRecord, ThatIsCutOffLaterLeavesItsTraceWithTheFiler) {
    CBRENFrame frame;
    FillWithNumbers(frame);
    CDbRecord part = RecordOf(frame, AcDb::kCopyFiler);
    part.m_arBytes.resize(part.m_arBytes.size() - 1);
    CRecordReader reader(AcDb::kCopyFiler, part);
    CBRENFrame copy;
    EXPECT_EQ(copy.dwgIn(&reader), Acad::eOk);
    EXPECT_EQ(reader.filerStatus(), Acad::eFilerError);
    EXPECT_EQ(copy.m_bWCDW, 25);
    EXPECT_EQ(copy.m_bReserved, 0);
}
