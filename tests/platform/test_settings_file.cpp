// tests/platform/test_settings_file.cpp - INI files.
#include "platform/settings_file.h"

#include <gtest/gtest.h>

#include "support/rows.h"
#include "support/temp_dir.h"

namespace {

constexpr std::string_view Sample =
    "; Island = not a setting\r\n"
    "stray=0\r\n"
    "[Terrafold]\r\n"
    "Language = \"US\" \r\n"
    "  ;Language=FR\r\n"
    "no equals sign\r\n"
    "language=second\r\n"
    "Title=' a = b ; c '\r\n"
    "\r\n"
    "[ERR]\r\n"
    "00014=48 00 d\xE9j\xE0\r\n"
    "[terrafold]\r\n"
    "Late=1\r\n";

// "sample", or a text of the row's own.
std::string Text_Of(const std::string& Cell) {
    return Cell == "sample" ? std::string(Sample) : Cell;
}

}  // namespace

TEST(Settings_File, WorkedExamples) {
    Expect_Rows("settings_file",
                {{"Setting_In_Text",
                  [](const Row_Cells& C) {
                      const auto Found = Setting_In_Text(Text_Of(C[0]), C[1], C[2]);
                      return Found ? "[" + *Found + "]" : "nothing";
                  }},
                 {"Text_With_Setting", [](const Row_Cells& C) {
                      const std::string Text = Text_Of(C[0]);
                      auto New = Text_With_Setting(Text, C[1], C[2], C[3]);
                      if (!New) return std::string("refused");
                      if (C[0] != "sample") return *New;
                      // Where the sample differs: what went, and what came.
                      const auto First =
                          std::mismatch(Text.begin(), Text.end(), New->begin(), New->end());
                      const auto Last =
                          std::mismatch(Text.rbegin(), std::make_reverse_iterator(First.first),
                                        New->rbegin(), std::make_reverse_iterator(First.second));
                      return std::string(First.first, Last.first.base()) + " > " +
                             std::string(First.second, Last.second.base());
                  }}});
}

TEST(Settings_File, AtMost255CharactersComeBack) {
    const Temp_Dir Dir;
    const std::string Long(300, 'x');
    Dir.Write("A.ini", "[A]\r\nplain=" + Long + "\r\nquoted=\"" + Long + "\"\r\n");
    for (const char* Key : {"plain", "quoted", "none"})
        EXPECT_EQ(Setting_Read(Dir.Path("a.INI"), "A", Key, Long), std::string(255, 'x')) << Key;
    for (const std::string& File : {Dir.Path("none.ini"), std::string()})
        EXPECT_EQ(Setting_Read(File, "A", "plain", "48 00 ????"), "48 00 ????");
}

TEST(Settings_File, WhatIsWrittenIsReadBackAndWhatNoLineCanHoldIsRefused) {
    const Temp_Dir Dir;
    const std::string File = Dir.Path("Terrafold.Ini");
    ASSERT_TRUE(Setting_Write(File, "Terrafold", "Fl1Fois", "1"));
    for (const std::string_view Value :
         {"", "C:\\Mes projets\\\xCEle.LWM", " padded\t", "\"quoted\"", "'single'", "\"", "a=b;c",
          "; no comment", "[A]", "\"\"\"\""}) {
        ASSERT_TRUE(Setting_Write(File, "Terrafold", "DerApt1", Value));
        EXPECT_EQ(Setting_Read(File, "Terrafold", "DerApt1", "?"), Value);
        EXPECT_EQ(Setting_Read(File, "Terrafold", "Fl1Fois", "?"), "1");
    }
    EXPECT_FALSE(Setting_Write(File, "Terrafold", "Language", std::string_view("F\0R", 3)));
    EXPECT_FALSE(Setting_Write(Dir.Path("none\\A.ini"), "A", "k", "1"));
    EXPECT_FALSE(Setting_Write(Dir.Path(), "A", "k", "1")) << "a directory";
}

TEST(Settings_File, BinaryAndHugeFilesDoNoHarm) {
    const Temp_Dir Dir;
    std::string Noise = "[A]\n";
    for (unsigned I = 0, Seed = 1; I < 3'000'000; ++I) {
        Seed = Seed * 1664525 + 1013904223;
        Noise += static_cast<char>(Seed >> 24);
    }
    Dir.Write("noise.ini", Noise + "\n[Terrafold]\nLanguage=US");
    EXPECT_EQ(Setting_Read(Dir.Path("noise.ini"), "Terrafold", "Language", ""), "US");
    ASSERT_TRUE(Setting_Write(Dir.Path("noise.ini"), "Terrafold", "Language", "FR"));
    EXPECT_TRUE(Dir.Read("noise.ini") == Noise + "\n[Terrafold]\nLanguage=FR");
}
