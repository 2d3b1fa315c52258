// tests/platform/test_settings_file.cpp - INI files.
#include <gtest/gtest.h>

#include "platform/settings_file.h"
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

std::optional<std::string> Of(std::string_view Key, std::string_view Section = "Terrafold") {
    return Setting_In_Text(Sample, Section, Key);
}

}  // namespace

TEST(Settings_File, ReadsAsWindowsDoes) {
    EXPECT_EQ(Of("LANGUAGE", "TERRAFOLD"), "US") << "case, blanks and quotes; the first wins";
    EXPECT_EQ(Of("Title"), " a = b ; c ") << "single quotes keep blanks";
    EXPECT_EQ(Of("00014", "err"), "48 00 d\xE9j\xE0");
    EXPECT_EQ(Of("stray"), std::nullopt) << "outside its section";
    EXPECT_EQ(Of("00014"), std::nullopt) << "in another section";
    EXPECT_EQ(Of("Late"), std::nullopt) << "a section that comes twice counts once";
    EXPECT_EQ(Of("no equals sign"), std::nullopt);
    EXPECT_EQ(Of(";Language"), std::nullopt);
    EXPECT_EQ(Setting_In_Text("\xEF\xBB\xBF[A]\nk=\nm=\"\nn=\"\"", "A", "k"), "");
    EXPECT_EQ(Setting_In_Text("[A]\nk=\nm=\"\nn=\"\"", "A", "m"), "\"") << "half a pair stays";
    EXPECT_EQ(Setting_In_Text("[A]\nk=\nm=\"\nn=\"\"", "A", "n"), "");
}

TEST(Settings_File, AtMost255CharactersComeBack) {
    const Temp_Dir Dir;
    const std::string Long(300, 'x');
    Dir.Write("A.ini", "[A]\r\nplain=" + Long + "\r\nquoted=\"" + Long + "\"\r\n");
    const std::string File = Dir.Path("a.INI");
    EXPECT_EQ(Setting_Read(File, "A", "plain", ""), std::string(255, 'x'));
    EXPECT_EQ(Setting_Read(File, "A", "quoted", ""), std::string(255, 'x'));
    EXPECT_EQ(Setting_Read(File, "A", "none", Long), std::string(255, 'x'));
    EXPECT_EQ(Setting_Read(Dir.Path("none.ini"), "A", "plain", "48 00 ????"), "48 00 ????");
    EXPECT_EQ(Setting_Read("", "A", "plain", "d"), "d");
}

TEST(Settings_File, WritingLeavesEveryOtherLine) {
    const std::string Changed = Text_With_Setting(Sample, "terrafold", "LANGUAGE", "FR").value();
    std::string Expected(Sample);
    Expected.replace(Expected.find(" \"US\" "), 6, "FR");
    EXPECT_EQ(Changed, Expected);

    const std::string Added = Text_With_Setting(Sample, "Terrafold", "DirFS", "C:\\FS9\\").value();
    Expected = Sample;
    Expected.insert(Expected.find("\r\n[ERR]"), "DirFS=C:\\FS9\\\r\n");
    EXPECT_EQ(Added, Expected) << "behind the section's last line, before the empty one";

    const std::string New = Text_With_Setting(Sample, "Window", "Zoom", "1").value();
    EXPECT_EQ(New, std::string(Sample) + "[Window]\r\nZoom=1\r\n");
}

TEST(Settings_File, LineEndsFollowTheFile) {
    EXPECT_EQ(Text_With_Setting("", "A", "k", "1"), "[A]\r\nk=1\r\n");
    EXPECT_EQ(Text_With_Setting("[A]\nx=1\n", "A", "k", "2"), "[A]\nx=1\nk=2\n");
    EXPECT_EQ(Text_With_Setting("[A]\nx=1", "A", "k", "2"), "[A]\nx=1\nk=2\n");
    EXPECT_EQ(Text_With_Setting("[A]\r\nx=1", "A", "X", "2"), "[A]\r\nx=2") << "no end added";
    EXPECT_EQ(Text_With_Setting("[A]\nx=1\r", "A", "k", "2"), "[A]\nx=1\r\nk=2\n");
    EXPECT_EQ(Text_With_Setting("[A]", "B", "k", "2"), "[A]\r\n[B]\r\nk=2\r\n");
}

TEST(Settings_File, WhatIsWrittenIsReadBack) {
    const Temp_Dir Dir;
    const std::string File = Dir.Path("Terrafold.Ini");
    for (const std::string_view Value :
         {"", "C:\\Mes projets\\\xCEle.LWM", " padded\t", "\"quoted\"", "'single'", "\"", "a=b;c",
          "; no comment", "[A]", "\"\"\"\""}) {
        ASSERT_TRUE(Setting_Write(File, "Terrafold", "Fl1Fois", "1"));
        ASSERT_TRUE(Setting_Write(File, "Terrafold", "DerApt1", Value));
        EXPECT_EQ(Setting_Read(File, "Terrafold", "DerApt1", "?"), Value);
        EXPECT_EQ(Setting_Read(File, "Terrafold", "Fl1Fois", "?"), "1");
    }
}

TEST(Settings_File, WhatNoLineCanHoldIsRefused) {
    const Temp_Dir Dir;
    Dir.Write("A.ini", Sample);
    const std::string File = Dir.Path("A.ini");
    EXPECT_FALSE(Setting_Write(File, "Terrafold", "Language", "FR\r\n[ERR]"));
    EXPECT_FALSE(Setting_Write(File, "Terrafold", "Language", std::string_view("F\0R", 3)));
    for (const std::string_view Key : {"", "a=b", ";a", "[a", " a"})
        EXPECT_FALSE(Setting_Write(File, "Terrafold", Key, "1")) << Key;
    EXPECT_FALSE(Setting_Write(File, "a]b", "k", "1"));
    EXPECT_EQ(Dir.Read("A.ini"), Sample);
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
    Noise += "\n[Terrafold]\nLanguage=US";
    Dir.Write("noise.ini", Noise);
    EXPECT_EQ(Setting_Read(Dir.Path("noise.ini"), "Terrafold", "Language", ""), "US");
    ASSERT_TRUE(Setting_Write(Dir.Path("noise.ini"), "Terrafold", "Language", "FR"));
    Noise.replace(Noise.size() - 2, 2, "FR");
    EXPECT_TRUE(Dir.Read("noise.ini") == Noise);
}
