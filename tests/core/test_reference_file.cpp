// tests/core/test_reference_file.cpp - reference files: written and read, old, damaged, listed.
#include "core/reference_file.h"

#include <fstream>
#include <iterator>

#include "core/project_test.h"
#include "platform/settings_file.h"
#include "support/environment.h"
#include "support/rows.h"

namespace {

// Its whole file is road.Ref, whose values all differ so that no two fields can be exchanged.
class Reference_File : public Project_Test {
protected:
    Reference_File() {
        std::ifstream In(TEST_DATA_DIR "/road.Ref", std::ios::binary);
        Whole.assign(std::istreambuf_iterator<char>(In), {});
    }
    std::string Write(const std::string& Name, const std::string& Bytes) {
        Dir.Write("App/Resource/" + Name, Bytes);
        return Ref_Dir() + Name;
    }
    // The number of the message that refuses the file, which then changes nothing; else "same"
    // or the line of values as it is saved.
    std::string Outcome(const std::string& File) {
        Host_Of_Test.Boxes.clear();
        Cur_Attr = {};
        Cur_Attr.Text_Rt = Ref_Name = "before";
        const Attr Before = Cur_Attr;
        if (!Ref_Read_Text(File)) {
            EXPECT_TRUE(Cur_Attr == Before && Ref_Name == "before");
            EXPECT_EQ(Host_Of_Test.Boxes.size(), 1U);
            return std::to_string(Host_Of_Test.Last_Message());
        }
        EXPECT_TRUE(Host_Of_Test.Boxes.empty() && Ref_Save(Ref_Dir() + "x.Ref", Ref_Name));
        const std::string Saved = Dir.Read("App/Resource/x.Ref"), Plain = Whole;
        const std::size_t At = Saved.find("        12.5");
        return Saved.substr(30) == Plain.substr(30)
                   ? "same"
                   : Saved.substr(At + 8, Saved.find('\r', At) - At - 8);
    }
    std::string Last_Used() { return Setting_Read(Ini_File, "Terrafold", "DerRefLu", "none"); }
};

}  // namespace

TEST_F(Reference_File, IsWrittenAndReadBack) {
    // In the order of model.h.
    // clang-format off
    const Attr Road{2, 12.5, 6, 5, 1134, 3, 7, 8, "free text", "AB_CD", -14.5, 9, 10, 11, 12,
                    {"t0", "t1", "t2", "t3", "t4", "t 5"}, 13, 16, 15, 17, 18, 19, 20, 21, 22};
    // clang-format on
    const Environment_Scope Epoch("SOURCE_DATE_EPOCH", "1065225600");
    const std::string Path = Write("road.Ref", "an older file");
    Cur_Attr = Road;
    ASSERT_TRUE(Ref_Save(Path, "  my road "));
    EXPECT_EQ(Dir.Read("App/Resource/road.Ref"), Whole);
    EXPECT_EQ(Last_Used(), Path);
    Cur_Attr = {};
    Ref_Name = DerRefLu = "";
    ASSERT_TRUE(Ref_Read(Path));
    EXPECT_EQ(Cur_Attr, Road);
    EXPECT_EQ(Ref_Name + DerRefLu, "my road" + Path);
    ASSERT_TRUE(Ref_Save(Path, "the \"old\" road"));
    EXPECT_EQ(Ref_Name, "the 'old' road");
}

TEST_F(Reference_File, OlderAndDamagedFiles) {
    Expect_Rows("reference_file", {{"change", [&](const Row_Cells& C) {
                                        const std::string Kept = Whole;
                                        for (std::size_t At = 0; At + 1 < C.size(); At += 2)
                                            Whole = With(C[At], C[At + 1]);
                                        const std::string File = std::exchange(Whole, Kept);
                                        return Outcome(File);
                                    }}});
    for (std::size_t Size = 0; Size <= Whole.rfind("     \"t 5"); ++Size) {
        Host_Of_Test.Boxes.clear();
        EXPECT_FALSE(Ref_Read_Text(Whole.substr(0, Size))) << Size;
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
    for (const char* Name : {"c.REF", "e.x.ref", "ref", "f.refs"}) Write(Name, Whole);
    Write("B.ref", With("my road", ""));
    Write("a.Ref", "0000 V4.0");  // no second line
    Write("d.ref", "\r\n0000 none\r\n\r\n\r\n      \"no version\r\n");
    for (int Again = 0; Again < 2; ++Again) {
        Ref_List();
        EXPECT_EQ(Ref_Files, (std::vector<std::string>{"B.ref", "c.REF", "d.ref"}));
        EXPECT_EQ(Ref_Names, (std::vector<std::string>{"???", "my road", "no version"}));
        EXPECT_EQ(Nb_Refs, 3);
    }
}
