// tests/core/test_catalogue.cpp - the catalogue that the program comes with.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <regex>
#include <set>
#include <string>

namespace fs = std::filesystem;

namespace {

std::string Bytes_Of(const fs::path& File) {
    std::ifstream In(File, std::ios::binary);
    return {std::istreambuf_iterator<char>(In), {}};
}

// The numbers that the sources ask for in so many words.
std::set<int> Asked_For() {
    static const std::regex Call("Msg_Show(?:_Text)?\\s*\\(\\s*([0-9]+)");
    std::set<int> Found;
    for (const auto& Entry : fs::recursive_directory_iterator(TEST_SOURCE_DIR "/src")) {
        const std::string Source = Entry.is_regular_file() ? Bytes_Of(Entry.path()) : "";
        for (std::sregex_iterator M(Source.begin(), Source.end(), Call), End; M != End; ++M)
            Found.insert(std::stoi((*M)[1]));
    }
    return Found;
}

std::string Style_Of(int Num) {
    if (Num == 20) return "32 04";  // a question
    return 130 <= Num && Num <= 133 ? "64 00" : "(48|16) 00";
}

}  // namespace

TEST(Catalogue, EveryMessageSpeaksBothLanguagesInItsStyle) {
    const std::string Bytes = Bytes_Of(TEST_SOURCE_DIR "/resource/FicErr.txt");
    ASSERT_TRUE(Bytes.starts_with("[ERR]\r\n"));
    static const std::regex Line(
        "([0-9]{5})=([0-9]{2} [0-9]{2}) ([^ \"\r\n][^\r\n]{12,240}[^ \"\r\n])\r\n");
    std::map<int, std::string> Styles;
    std::set<std::string> Texts;
    std::size_t Read = 7;
    for (std::sregex_iterator M(Bytes.begin() + 7, Bytes.end(), Line), End; M != End; ++M) {
        Styles[std::stoi((*M)[1])] = (*M)[2];
        EXPECT_TRUE(Texts.insert((*M)[3]).second) << (*M)[1] << " is a copy";
        Read += static_cast<std::size_t>(M->length());
    }
    EXPECT_EQ(Read, Bytes.size()) << "every line is a message";
    EXPECT_EQ(Styles.size(), Texts.size()) << "a number that comes twice";
    for (const auto& [Key, Style] : Styles) {
        if (Key > 500 && Styles.contains(Key - 500)) continue;  // the English of another
        EXPECT_TRUE(std::regex_match(Style, std::regex(Style_Of(Key)))) << Key;
        EXPECT_EQ(Styles[Key + 500], Style) << Key;
    }
    const std::set<int> Asked = Asked_For();
    EXPECT_TRUE(Asked.contains(33)) << "the search finds what is there";
    for (const int Num : Asked) EXPECT_TRUE(Styles.contains(Num)) << Num;
}
