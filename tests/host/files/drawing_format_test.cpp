#include "host/files/drawing_format.h"

#include "platform/acad/db_line.h"
#include "tests/host/files/drawing_contents.h"
#include "tests/host/files/dwg_foreign_file.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace {

void AppendLine(AcDbDatabase& database) {
    const CDbOpen<AcDbBlockTableRecord> space(database.ModelSpaceId(), AcDb::kForWrite);
    auto* const pLine = new AcDbLine({0, 0, 0}, {5, 0, 0});
    space->appendAcDbEntity(pLine);
    pLine->close();
}

/// Why the bytes are refused; fails the test when they are not.
std::string Refusal(std::string_view bytes) {
    try {
        ReadDrawing(bytes);
    } catch (const CDrawingFailure& failure) {
        EXPECT_EQ(failure.Status(), Acad::eFilerError);
        return failure.what();
    }
    ADD_FAILURE() << "read";
    return {};
}

/// Gives the reading up when it asks for the time after so many.
Acad::ErrorStatus StatusOfReadingUpTo(std::string_view bytes, std::size_t nAsked) {
    try {
        ReadDrawing(bytes, [&](std::size_t, std::size_t) { return nAsked-- > 0; });
    } catch (const CDrawingFailure& failure) {
        EXPECT_STREQ(failure.what(), "it was given up");
        return failure.Status();
    }
    return Acad::eOk;
}

} // namespace

TEST(FormatOfEnding, IsToldInAnyCaseAndNothingForAnother) {
    EXPECT_EQ(FormatOfEnding("a.dwg"), CDrawingFormat::Dwg);
    EXPECT_EQ(FormatOfEnding("dir.dxf/a.b.DWG"), CDrawingFormat::Dwg);
    EXPECT_EQ(FormatOfEnding("/a.Dxf"), CDrawingFormat::Dxf);
    for (const char* path : {"", "a", ".dwg", "a.dwg.bak", "a.dwgx", "dwg", "a.dwg/b"})
        EXPECT_EQ(FormatOfEnding(path), std::nullopt) << path;
}

TEST(ReadDrawing, GoesByWhatTheBytesAre) {
    AcDbDatabase database;
    AppendLine(database);
    for (const CDrawingFormat format : {CDrawingFormat::Dwg, CDrawingFormat::Dxf}) {
        const CWrittenDrawing written = WriteDrawing(database, format);
        EXPECT_TRUE(written.m_losses.empty());
        const CReadDrawing read = ReadDrawing(written.m_strBytes);
        EXPECT_EQ(read.m_format, format);
        EXPECT_TRUE(read.m_losses.empty());
        EXPECT_FALSE(read.m_pDatabase->IsModified());
        EXPECT_EQ(Entities<AcDbLine>(read.m_pDatabase->ModelSpaceId()).size(), 1U);
    }
}

TEST(ReadDrawing, TakesADxfThatBeginsWithAByteOrderMark) {
    AcDbDatabase database;
    AppendLine(database);
    const std::string strMarked = "\xEF\xBB\xBF" + WriteDrawing(database, CDrawingFormat::Dxf).m_strBytes;
    const CReadDrawing read = ReadDrawing(strMarked);
    EXPECT_EQ(read.m_format, CDrawingFormat::Dxf);
    EXPECT_EQ(Entities<AcDbLine>(read.m_pDatabase->ModelSpaceId()).size(), 1U);
}

TEST(ReadDrawing, TellsHowFarItIsAndCanBeGivenUpBeforeAnyObject) {
    AcDbDatabase database;
    for (int i = 0; i < 20; ++i)
        AppendLine(database);
    for (const CDrawingFormat format : {CDrawingFormat::Dwg, CDrawingFormat::Dxf}) {
        const CWrittenDrawing written = WriteDrawing(database, format);
        std::vector<double> arParts;
        const auto goesOn = [&](std::size_t nDone, std::size_t nAll) {
            arParts.push_back(static_cast<double>(nDone) / static_cast<double>(nAll));
            return true;
        };
        EXPECT_NE(ReadDrawing(written.m_strBytes, goesOn).m_pDatabase, nullptr);
        ASSERT_GT(arParts.size(), 20U);
        EXPECT_TRUE(std::is_sorted(arParts.begin(), arParts.end()));
        EXPECT_GT(arParts.back(), 0.8);
        EXPECT_LE(arParts.back(), 1.0);
        for (std::size_t nLast = 0; nLast < arParts.size(); ++nLast)
            EXPECT_EQ(StatusOfReadingUpTo(written.m_strBytes, nLast), Acad::eUserBreak) << nLast;
    }
}

TEST(ReadDrawing, GivesWhatTheDrawingDoesNotHold) {
    const CReadDrawing read = ReadDrawing("999\nmade by hand\n0\nSECTION\n2\nENTITIES\n0\nHATCH\n0\nHATCH\n"
                                          "0\nENDSEC\n0\nEOF\n");
    EXPECT_EQ(read.m_losses, (CDrawingLosses{{"HATCH", 2}}));
}

TEST(ReadDrawing, NamesTheVersionOfAFileThatItCannotRead) {
    const std::string strOnly = "; only AC1015 (R2000) can be read.";
    EXPECT_EQ(Refusal("AC1032 and so on"), "The drawing is of version AC1032 (R2018)" + strOnly);
    EXPECT_EQ(Refusal("AC1009"), "The drawing is of version AC1009 (R12)" + strOnly);
    EXPECT_EQ(Refusal("AC1006"), "The drawing is of version AC1006 (R10)" + strOnly);
    EXPECT_EQ(Refusal("AC1099"), "The drawing is of version AC1099" + strOnly);
    EXPECT_EQ(Refusal("AC2.10"), "The drawing is of version AC2.10" + strOnly);
}

TEST(ReadDrawing, RefusesWhatIsNoDrawing) {
    EXPECT_EQ(Refusal(""), "the file is empty");
    const std::string strNeither = "the file is neither a DWG nor a DXF drawing";
    EXPECT_EQ(Refusal("A letter.\n"), strNeither);
    EXPECT_EQ(Refusal("\n\n"), strNeither);
    EXPECT_EQ(Refusal("AC power\n"), strNeither);
    EXPECT_EQ(Refusal("%PDF-1.7\n"), strNeither);
    EXPECT_EQ(Refusal("01\nSECTION\n"), strNeither);
    EXPECT_NE(Refusal("AC1015"), "") << "cut off";
    EXPECT_NE(Refusal("  0\r\nSECTION\r\n  2\r\nENTITIES\r\n"), "") << "cut off";
}

TEST(ReadDrawing, TellsInUtf8WhatIsWrong) {
    const std::string strReason = Refusal("0\nSECTION\n2\nBLOCKS\n0\nLINE\n0\nENDSEC\n0\nEOF\n");
    EXPECT_EQ(strReason, "line 5: a block is expected");
}

TEST(WriteDrawing, RefusesWhileAnObjectIsBeingChanged) {
    AcDbDatabase database;
    AppendLine(database);
    const CDbOpen<AcDbLayerTableRecord> layer(database.clayer(), AcDb::kForWrite);
    try {
        WriteDrawing(database, CDrawingFormat::Dwg);
        FAIL() << "written";
    } catch (const CDrawingFailure& failure) {
        EXPECT_EQ(failure.Status(), Acad::eWasOpenForWrite);
        EXPECT_EQ(failure.what(), "the object #" + database.clayer().handle().Hex() + " is being changed");
    }
}

TEST(LossesText, NamesEachKindWithItsCount) {
    EXPECT_EQ(LossesText({{"HATCH", 3}, {"LAYER off, frozen or locked", 1}}),
              "HATCH (3); LAYER off, frozen or locked (1)");
    EXPECT_EQ(LossesText({}), "");
}

TEST(ReadDrawing, TellsTheEntityTypesThatItKeepsWithoutKnowingThemByNameAndNumber) {
    const CBytes bytes = WriteDwgFile(ForeignFile(false));
    const CReadDrawing read = ReadDrawing({reinterpret_cast<const char*>(bytes.data()), bytes.size()});
    EXPECT_EQ(read.m_kept, (CDrawingLosses{{"CIRCLE, type 18", 1},
                                           {"HATCH, type 78", 1},
                                           {"POLYLINE, type 15", 1},
                                           {"SEQEND, type 6", 1},
                                           {"VERTEX, type 10", 2}}));
    EXPECT_TRUE(read.m_losses.empty());
}
