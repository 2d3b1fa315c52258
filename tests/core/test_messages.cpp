// tests/core/test_messages.cpp - from a number to a box.
#include "core/messages.h"

#include "support/program_test.h"

class Messages : public Program_Test {
protected:
    void Catalogue(std::string_view Lines) {
        Dir.Write("App/Resource/FicErr.txt", "[ERR]\r\n" + std::string(Lines));
    }
    // What message Num shows: "style title|text".
    std::string Shown(Int Num) {
        Msg_Show(Num);
        const Box& B = Host_Of_Test.Boxes.back();
        return std::to_string(B.Style) + " " + B.Title + "|" + B.Text;
    }
};

TEST_F(Messages, EnglishStandsFiveHundredAboveFrench) {
    Catalogue("00014=48 00 Un\r\n00514=64 01 One\r\n00537=16 00 Rien\r\n01037=48 00 Nothing\r\n");
    EXPECT_EQ(Shown(14), "48 Erreur !!|(14) Un");
    Language = "US";
    EXPECT_EQ(Shown(14), "65 Information|(514) One");
    EXPECT_EQ(Host_Of_Test.Last_Message(), 14) << "the host gets the number of the code";
    EXPECT_EQ(Shown(537), "48 Erreur !!|(1037) Nothing");
    Language = "DE";
    EXPECT_EQ(Shown(537), "16 Erreur !!|(537) Rien") << "French unless US";
}

TEST_F(Messages, TheIconGivesTheTitle) {
    Catalogue("00001=16 00 a\r\n00002=32 04 b\r\n00003=48 01 c\r\n00004=64 03 d\r\n");
    EXPECT_EQ(Shown(1), "16 Erreur !!|(1) a");
    EXPECT_EQ(Shown(2), "36 Question ?|(2) b");
    EXPECT_EQ(Shown(3), "49 Erreur !!|(3) c");
    EXPECT_EQ(Shown(4), "67 Information|(4) d");
}

TEST_F(Messages, ALostMessageIsAWarning) {
    EXPECT_EQ(Shown(20), "48 Erreur !!|(20) ????") << "no file at all";
    Catalogue("00021=64 00 other\r\n");
    EXPECT_EQ(Shown(20), "48 Erreur !!|(20) ????") << "no such key";
    Language = "US";
    EXPECT_EQ(Shown(20), "48 Erreur !!|(520) ????");
}

TEST_F(Messages, ValuesAreReadByColumnsAndTrimmed) {
    Catalogue(
        "00001=\r\n00002=48 0\r\n00003=48 00 \r\n00004=  64x03y  blanks \r\n00005=no number\r\n");
    EXPECT_EQ(Shown(1), "0 Erreur !!|(1) ");
    EXPECT_EQ(Shown(2), "48 Erreur !!|(2) ");
    EXPECT_EQ(Shown(3), "48 Erreur !!|(3) ");
    EXPECT_EQ(Shown(4), "67 Information|(4)   blanks");
    EXPECT_EQ(Shown(5), "0 Erreur !!|(5) ber");
}

TEST_F(Messages, AMessageIsBoundedByTheBuffer) {
    Catalogue("00001=48 00 " + std::string(1000, 'x') + "\r\n");
    EXPECT_EQ(Shown(1), "48 Erreur !!|(1) " + std::string(255 - 6, 'x'));
}

TEST_F(Messages, AddedTextStandsOnALineOfItsOwn) {
    Catalogue("00121=48 00 Cross\r\n");
    Msg_Show_Text(121, "Bmp pixel X:12 Y:7");
    EXPECT_EQ(Host_Of_Test.Boxes.back().Text, "(121) Cross\r\nBmp pixel X:12 Y:7");
    EXPECT_EQ(Host_Of_Test.Last_Message(), 121);
}

TEST_F(Messages, TheButtonPressedIsKept) {
    Catalogue("00020=32 04 Sure ?\r\n");
    Host_Of_Test.Box_Answers = {Button_Yes, Button_No};
    EXPECT_EQ(Msg_Show(20), Button_Yes);
    EXPECT_EQ(Msg_Result, Button_Yes);
    EXPECT_EQ(Msg_Show_Text(20, "x"), Button_No);
    EXPECT_EQ(Msg_Result, Button_No);
}
