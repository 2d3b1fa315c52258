// tests/core/test_catalogue.cpp - the catalogue that the program comes with.
#include <filesystem>
#include <fstream>
#include <iterator>
#include <regex>
#include <set>

#include "core/messages.h"
#include "platform/paths.h"
#include "support/program_test.h"

namespace fs = std::filesystem;

namespace {

const std::set<Int> In_Use = {1,  6,   7,   9,   10,  12,  14,  16,  20,  23,  24,  30,  31,  32,
                              33, 101, 103, 107, 120, 121, 122, 124, 129, 130, 131, 132, 133, 537};

std::string Bytes_Of(const fs::path& File) {
    std::ifstream In(File, std::ios::binary);
    return {std::istreambuf_iterator<char>(In), {}};
}

// The numbers that a source asks for.
std::set<Int> Asked_For(const std::string& Source) {
    static const std::regex Call("Msg_Show(?:_Text)?\\s*\\(\\s*([0-9]+)");
    std::set<Int> Found;
    for (std::sregex_iterator M(Source.begin(), Source.end(), Call), End; M != End; ++M)
        Found.insert(static_cast<Int>(std::stoi((*M)[1])));
    return Found;
}

}  // namespace

class Catalogue : public Program_Test {
protected:
    Catalogue() { Msg_File = Program_Path(File).value(); }

    const fs::path File = fs::path(TEST_SOURCE_DIR) / "resource/FicErr.txt";
};

TEST_F(Catalogue, EveryNumberSpeaksBothLanguages) {
    std::set<std::string> Texts;
    for (const Int Num : In_Use)
        for (const char* Tongue : {"FR", "US"}) {
            Language = Tongue;
            Int Key_Num = 0;
            std::string Title;
            Msg_Fetch(Num, Key_Num, Title);
            EXPECT_GT(Msg_Text.size(), 20U) << Key_Num;
            EXPECT_LT(Msg_Text.size(), 249U) << Key_Num << " may have been cut";
            EXPECT_EQ(Msg_Text.find("????"), std::string::npos) << Key_Num;
            EXPECT_TRUE(Texts.insert(Msg_Text).second) << Key_Num << " is a copy";
        }
}

TEST_F(Catalogue, QuestionsNotesAndErrors) {
    for (const Int Num : In_Use)
        for (const char* Tongue : {"FR", "US"}) {
            Language = Tongue;
            Int Key_Num = 0;
            std::string Title;
            Msg_Fetch(Num, Key_Num, Title);
            const Int Style = static_cast<Int>(Msg_Icon + Msg_Buttons);
            if (Num == 20)
                EXPECT_EQ(Style, Box_Question + Box_Yes_No) << Key_Num;
            else if (130 <= Num && Num <= 133)
                EXPECT_EQ(Style, Box_Information + Box_Ok) << Key_Num;
            else
                EXPECT_TRUE(Style == Box_Warning || Style == Box_Stop) << Key_Num;
        }
}

TEST_F(Catalogue, EveryNumberThatTheSourcesAskForIsInUse) {
    std::set<Int> All;
    for (const auto& Entry : fs::recursive_directory_iterator(fs::path(TEST_SOURCE_DIR) / "src"))
        if (Entry.path().extension() == ".cpp" || Entry.path().extension() == ".h")
            All.merge(Asked_For(Bytes_Of(Entry.path())));
    EXPECT_TRUE(All.contains(33)) << "the search finds what is there";
    for (const Int Num : All) EXPECT_TRUE(In_Use.contains(Num)) << Num;
}

TEST_F(Catalogue, TheFileIsInGoodOrder) {
    const std::string Bytes = Bytes_Of(File);
    ASSERT_TRUE(Bytes.starts_with("[ERR]\r\n"));
    ASSERT_TRUE(Bytes.ends_with("\r\n"));
    static const std::regex Line("[0-9]{5}=[0-9]{2} [0-9]{2} [^ \"\r\n][^\r\n]*[^ \"\r\n]\r");
    std::set<std::string> Keys;
    for (std::size_t At = 7, End = 0; At < Bytes.size(); At = End + 1) {
        End = Bytes.find('\n', At);
        const std::string Text = Bytes.substr(At, End - At);
        EXPECT_TRUE(std::regex_match(Text, Line)) << Text;
        EXPECT_TRUE(Keys.insert(Text.substr(0, 5)).second) << Text;
        EXPECT_LE(Text.size(), 6U + 255U + 1U) << Text;
    }
    EXPECT_EQ(Keys.size(), 2 * In_Use.size()) << "no message that nobody shows";
}
