// tests/core/test_names.cpp - which names may be files, and how paths come apart.
#include "core/names.h"

#include <gtest/gtest.h>

TEST(Names, NamesThatMayBeFiles) {
    for (const char* Name : {"a b.BMP", "$$$_1.bmp", "A{1}.R8", "a.b", "x-y~(2)!#%&'.{_}"})
        EXPECT_TRUE(Name_Valid(Name)) << Name;
}

TEST(Names, NamesThatMayNot) {
    for (const char* Name : {"a.bmp.bak", ".bmp", "a .bmp", " a.bmp", "a.", "a", "a.jpeg", "", ".",
                             "a\\b.bmp", "a:b.bmp", "a+b.bmp", "a\"b.bmp", "a\tb.bmp", "\xE9t.bmp"})
        EXPECT_FALSE(Name_Valid(Name)) << Name;
}

TEST(Names, PathsComeApartAtTheLastBackslash) {
    std::string Dir, Name;
    Byte Err = 9;
    Path_Split("  C:\\My Scenery\\a b.bmp ", Dir, Name, Err);
    EXPECT_EQ(Err, 0);
    EXPECT_EQ(Dir, "C:\\My Scenery");
    EXPECT_EQ(Name, "a b.bmp");
    Path_Split(Name, Dir, Name, Err);
    EXPECT_EQ(Err, 0);
    EXPECT_EQ(Dir, "") << "no folder named";
    EXPECT_EQ(Name, "a b.bmp") << "the path may be the name itself";
}

TEST(Names, APathThatCannotServeLeavesBothPartsAsTheyWere) {
    for (const char* Path :
         {"C:\\dir\\", "\\a.bmp", "", "   ", "\\", "C:\\dir\\a.jpeg", "C:\\.x"}) {
        std::string Dir = "old dir", Name = "old name";
        Byte Err = 0;
        Path_Split(Path, Dir, Name, Err);
        EXPECT_EQ(Err, 1) << Path;
        EXPECT_EQ(Dir + "|" + Name, "old dir|old name") << Path;
    }
}

TEST(Names, NamesComeApartAtTheFirstDot) {
    const auto Parts = [](std::string_view Text) {
        std::string Base = "?", Ext = "?";
        Name_Split(Text, Base, Ext);
        return Base + "|" + Ext;
    };
    EXPECT_EQ(Parts("river.r8"), "river|R8");
    EXPECT_EQ(Parts("river."), "river|");
    EXPECT_EQ(Parts("river"), "river|");
    EXPECT_EQ(Parts("a.b.c"), "a|B.C");
    EXPECT_EQ(Parts("x.\xE9t"), "x|\xC9T") << "capitals of the code page";
    EXPECT_EQ(Parts(""), "|");
}
