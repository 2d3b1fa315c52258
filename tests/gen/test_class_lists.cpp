// tests/gen/test_class_lists.cpp - the lists of classes and the files that come with the program.
#include "gen/class_lists.h"

#include <algorithm>
#include <fstream>
#include <iterator>

#include "support/program_test.h"

namespace {

using Class_Lists_Test = Program_Test;

std::string Resource(const std::string& Name) {
    std::ifstream In(TEST_SOURCE_DIR "/resource/" + Name, std::ios::binary);
    return {std::istreambuf_iterator<char>(In), {}};
}

TEST_F(Class_Lists_Test, ColumnsOfEveryLineButTheLast) {
    Dir.Write("App/Resource/LC.txt",
              "007 012Y Wood\r\n300 001 beyond a Byte\r\n1   900 so is this\r\n14\r\nlast");
    const std::vector<LC_Entry> Land = LC_List_Read();
    ASSERT_EQ(Land.size(), 2U);
    EXPECT_EQ(Land[0].Class, 7);
    EXPECT_EQ(Land[0].Texture, 12);
    EXPECT_EQ(Land[0].Text, "007 Y Wood");
    EXPECT_EQ(Land[1].Class, 14);
    EXPECT_EQ(Land[1].Texture, 0) << "a short line";
    Dir.Write("App/Resource/WC.txt", "021 Lake\n\r\nlast\r\n");
    const std::vector<WC_Entry> Water = WC_List_Read();
    ASSERT_EQ(Water.size(), 2U);
    EXPECT_EQ(Water[0].Class, 21);
    EXPECT_EQ(Water[0].Text, "021 Lake");
    EXPECT_EQ(Water[1].Class, 0) << "an empty line keeps its place";
}

TEST_F(Class_Lists_Test, NoFileOrOneLine) {
    EXPECT_TRUE(LC_List_Read().empty());
    Dir.Write("App/Resource/LC.txt", "001 001 Only\r\n");
    Dir.Write("App/Resource/WC.txt", "");
    EXPECT_TRUE(LC_List_Read().empty());
    EXPECT_TRUE(WC_List_Read().empty());
}

TEST_F(Class_Lists_Test, TheFilesThatComeWithTheProgram) {
    for (const std::string Name : {"LC.txt", "WC.txt"}) {
        const std::string Text = Resource(Name);
        Dir.Write("App/Resource/" + Name, Text);
        EXPECT_EQ(std::ranges::count(Text, '\n'), std::ranges::count(Text, '\r'));
        EXPECT_TRUE(Text.ends_with("\r\n"));
    }
    const std::vector<LC_Entry> Land = LC_List_Read();
    EXPECT_EQ(std::ssize(Land), std::ranges::count(Resource("LC.txt"), '\n') - 1);
    for (const Byte Needed : {0, 135, 253, 254})  // defaults and "no class"
        EXPECT_EQ(std::ranges::count(Land, Needed, &LC_Entry::Class), 1) << int{Needed};
    EXPECT_TRUE(std::ranges::is_sorted(Land, std::ranges::less_equal{}, &LC_Entry::Class) ||
                std::ranges::is_sorted(Land, {}, &LC_Entry::Class));
    const std::vector<WC_Entry> Water = WC_List_Read();
    EXPECT_EQ(std::ssize(Water), std::ranges::count(Resource("WC.txt"), '\n') - 1);
    for (const WC_Entry& W : Water) {
        EXPECT_GE(W.Class, 1);
        EXPECT_LE(W.Class, 59);
    }
}

}  // namespace
