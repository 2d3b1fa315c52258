// tests/core/test_line_reader.cpp - lines, tokens and strings of files, and names of files.
#include "core/line_reader.h"

#include <gtest/gtest.h>

#include "core/names.h"
#include "support/rows.h"

namespace {

// Every line between brackets.
std::string Lines(const Row_Cells& C) {
    std::string Told;
    Reader_Open(C[0]);
    while (Next_Line()) Told += "[" + std::string(Cur_Line) + "]";
    EXPECT_EQ(Cur_Len, 0);
    EXPECT_EQ(Reader_Bytes_Left(), 0U);
    return Told;
}

// So many tokens of the last line with the place where each of them leaves the reader, and a
// point once the line is used up.
std::string Tokens(const Row_Cells& C) {
    std::string Told;
    Reader_Open(C[0]);
    while (Reader_Bytes_Left() > 0) Next_Line();
    for (int N = std::stoi(C[1]); N > 0; --N) {
        Next_Token();
        Told += "[" + std::string(Cur_Token) + "]" + std::to_string(Cur_Pos) +
                (Line_Is_Used_Up() ? "." : " ");
    }
    return Told;
}

std::string Quoted(const Row_Cells& C) {
    Reader_Open(C[0]);
    Next_Line();
    Cur_Token = "old";
    Next_Quoted();
    return std::string(Cur_Token);
}

std::string Split_Path(const Row_Cells& C) {
    std::string Dir = "old", Name = C[0];  // the path may be the name itself
    Byte Err = 9;
    Path_Split(Name, Dir, Name, Err);
    return Err == 1 && Dir == "old" && Name == C[0] ? "error" : "[" + Dir + "][" + Name + "]";
}

std::string Split_Name(const Row_Cells& C) {
    std::string Base = "?", Ext = "?";
    Name_Split(C[0], Base, Ext);
    return "[" + Base + "][" + Ext + "]";
}

}  // namespace

TEST(Line_Reader, WorkedExamples) {
    Expect_Rows("text_lines",
                {{"Next_Line", Lines},
                 {"Next_Token", Tokens},
                 {"Next_Quoted", Quoted},
                 {"Name_Valid", [](const Row_Cells& C) { return Name_Valid(C[0]) ? "yes" : "no"; }},
                 {"Path_Split", Split_Path},
                 {"Name_Split", Split_Name}});
}
