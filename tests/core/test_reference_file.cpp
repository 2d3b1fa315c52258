// tests/core/test_reference_file.cpp - reference files: written and read, old, damaged, listed.
#include "core/reference_file.h"

#include "core/model.h"
#include "core/project_maker.h"
#include "platform/settings_file.h"
#include "support/environment.h"
#include "support/program_test.h"

namespace {

// A file whose values all differ, so that no two fields can be exchanged.
const std::string File = With_Cr_Lf(
    "0000 V4.02003-10-04 00:00:00\n"
    "      \"my road\"\n"
    "      \"free text\"\n"
    "      \"AB_CD\"\n"
    "        12.5  2  3  1134  5  6  7  8  9  10  11  12  13 -14.5  15  16  17  18  19  20  21  "
    "22\n"
    "     \"t0\"\n     \"t1\"\n     \"t2\"\n     \"t3\"\n     \"t4\"\n     \"t 5\"\n");

Attr Attr_Of_File() {
    return {.Attrib = 2,
            .Alti = 12.5,
            .SurfShore = 6,
            .Largeur = 5,
            .LineType = 1134,
            .LandOnRight = 3,
            .FermerLine = 7,
            .Layer = 8,
            .Text_Rt = "free text",
            .Imbrication = "AB_CD",
            .Alt_Coast = -14.5,
            .Link_Ima = 9,
            .LWM_VTP2 = 10,
            .LandClass = 11,
            .LC = 12,
            .Texture_Name = {"t0", "t1", "t2", "t3", "t4", "t 5"},
            .Layer_Vtp2 = 13,
            .Drive_Right = 16,
            .Line_Night = 15,
            .LayerScasm = 17,
            .Vtp1_Line = 18,
            .Effil_Deb = 19,
            .Effil_Fin = 20,
            .VTP1_SpecNor = 21,
            .Flip_VTP1Texture = 22};
}

class Reference_File : public Program_Test {
protected:
    std::string Write(const std::string& Name, const std::string& Bytes) {
        Dir.Write("App/Resource/" + Name, Bytes);
        return Ref_Dir() + Name;
    }
    std::string Last_Used() { return Setting_Read(Ini_File, "Terrafold", "DerRefLu", "none"); }
};

TEST_F(Reference_File, IsWrittenAndReadBack) {
    const Environment_Scope Epoch("SOURCE_DATE_EPOCH", "1065225600");
    const std::string Path = Write("road.Ref", "an older file");
    Cur_Attr = Attr_Of_File();
    ASSERT_TRUE(Ref_Save(Path, "  my road "));
    EXPECT_EQ(Dir.Read("App/Resource/road.Ref"), File);
    EXPECT_EQ(Last_Used(), Path);
    Cur_Attr = {};
    Ref_Name = DerRefLu = "";
    ASSERT_TRUE(Ref_Read(Path));
    EXPECT_EQ(Cur_Attr, Attr_Of_File());
    EXPECT_EQ(Ref_Name, "my road");
    EXPECT_EQ(DerRefLu, Path);
    ASSERT_TRUE(Ref_Save(Path, "the \"old\" road"));
    EXPECT_EQ(Ref_Name, "the 'old' road");
    EXPECT_TRUE(Host_Of_Test.Boxes.empty());
}

TEST_F(Reference_File, OlderVersionsHaveFewerValues) {
    const std::size_t Coast = File.find(" -14.5"), Night = File.find("  15  16"),
                      Fan = File.find("  18  19"), End = File.find("\r\n     \"t0");
    Attr Expected = Attr_Of_File();
    Expected.Vtp1_Line = Expected.Effil_Deb = Expected.Effil_Fin = Expected.VTP1_SpecNor = 0;
    Expected.Flip_VTP1Texture = 1;
    const auto Reads = [&](const char* Version, std::size_t Cut) {
        Cur_Attr = {};
        const std::string Older = File.substr(0, Cut) + File.substr(End);
        return Ref_Read_Text(With(Older, "V4.0", Version)) && Cur_Attr == Expected;
    };
    EXPECT_TRUE(Reads("V3.9", Fan));
    EXPECT_TRUE(Reads("V3.0", Fan));
    Expected.Line_Night = 0;
    Expected.Drive_Right = 1;
    Expected.LayerScasm = 16;
    EXPECT_TRUE(Reads("V2.9", Night));
    EXPECT_TRUE(Reads("V2.2", Night));
    Expected.Alt_Coast = 0.0;
    EXPECT_TRUE(Reads("V2.1", Coast));
    EXPECT_TRUE(Reads("Vxxx", Coast)) << "no number is 0";
    Expected = Attr_Of_File();
    EXPECT_TRUE(Reads("V9.9", End));
    EXPECT_TRUE(Host_Of_Test.Boxes.empty());
}

TEST_F(Reference_File, DamageIsToldAndChangesNothing) {
    const struct {
        const char* Old;
        const char* New;
        Int Message;  // -1 when the file is read
    } Rows[] = {{"V4.0", "4.0", 30},         {"0000 V4.0", "\r\n\r\n0000 W4.0", 30},
                {"  22\r", "\r", 31},        {"  22\r", "  \r", 31},
                {"  8  9", "  256  9", 31},  {"  8  9", " -1  9", 31},
                {"  1134", "  32768", 31},   {"12.5", "1E999", 31},
                {"     \"t3\"\r\n", "", 31}, {"     \"t0\"", "\r\nEnd", 31},
                {"  22\r", "  x\r", -1},     {"  22\r", "  22  23\r", -1},
                {"\"t3\"", "\"t3", -1},      {"     \"t0\"", "\r\n\r\n\"    \"t0\"", -1}};
    Attr Before;
    Before.Text_Rt = "before";
    for (const auto& [Old, New, Message] : Rows) {
        Host_Of_Test.Boxes.clear();
        Cur_Attr = Before;
        Ref_Name = "before";
        EXPECT_EQ(Ref_Read(Write("x.ref", With(File, Old, New))), Message == -1) << New;
        EXPECT_EQ(Host_Of_Test.Last_Message(), Message) << New;
        EXPECT_EQ(Cur_Attr == Before && Ref_Name == "before", Message != -1) << New;
    }
}

TEST_F(Reference_File, ShortFilesAreDamaged) {
    for (std::size_t Size = 0; Size <= File.rfind("     \"t 5"); ++Size) {
        Host_Of_Test.Boxes.clear();
        EXPECT_FALSE(Ref_Read_Text(File.substr(0, Size))) << Size;
        EXPECT_EQ(Host_Of_Test.Boxes.size(), 1U);
    }
}

TEST_F(Reference_File, WhatFailsIsNotTheLastOneUsed) {
    EXPECT_FALSE(Ref_Read(Ref_Dir() + "absent.ref"));
    EXPECT_TRUE(Host_Of_Test.Boxes.empty());
    EXPECT_FALSE(Ref_Read(Write("x.ref", "0000 none")));
    EXPECT_FALSE(Ref_Save(Dir.Path("absent\\x.ref"), "name"));
    EXPECT_EQ(Host_Of_Test.Boxes.size(), 2U);
    EXPECT_EQ(Ref_Name + DerRefLu, "");
    EXPECT_EQ(Last_Used(), "none");
}

TEST_F(Reference_File, AreListedByTheirFileNames) {
    Write("c.REF", File);
    Write("B.ref", With(File, "my road", ""));
    Write("a.Ref", "0000 V4.0");  // no second line
    Write("d.ref", "\r\n0000 none\r\n\r\n\r\n      \"no version\r\n");
    Write("e.x.ref", File);
    Write("ref", File);
    Write("f.refs", File);
    for (int Again = 0; Again < 2; ++Again) {
        Ref_List();
        EXPECT_EQ(Ref_Files, (std::vector<std::string>{"B.ref", "c.REF", "d.ref"}));
        EXPECT_EQ(Ref_Names, (std::vector<std::string>{"???", "my road", "no version"}));
        EXPECT_EQ(Nb_Refs, 3);
    }
}

}  // namespace
