// tests/core/test_messages.cpp - from a number to a box.
#include "core/messages.h"

#include "support/program_test.h"
#include "support/rows.h"

using Messages = Program_Test;

TEST_F(Messages, WorkedExamples) {
    Expect_Rows("messages", {{"Msg_Show", [&](const Row_Cells& C) {
                                  Dir.Write("App/Resource/FicErr.txt", "[ERR]\r\n" + C[0] + "\r\n");
                                  Language = C[1];
                                  const Int Num = static_cast<Int>(std::stoi(C[2]));
                                  Msg_Show(Num);
                                  const Box& B = Host_Of_Test.Boxes.back();
                                  EXPECT_EQ(B.Num, Num) << "the host gets the number of the code";
                                  return std::to_string(B.Style) + " " + B.Title + ": " + B.Text;
                              }}});
    std::filesystem::remove(Dir.Native("App/Resource/FicErr.txt"));
    Msg_Show(20);
    EXPECT_EQ(Host_Of_Test.Boxes.back().Text, "(20) ????") << "no file at all";
}

TEST_F(Messages, AMessageIsBoundedByTheBuffer) {
    Dir.Write("App/Resource/FicErr.txt", "[ERR]\r\n00001=48 00 " + std::string(1000, 'x') + "\r\n");
    Msg_Show(1);
    EXPECT_EQ(Host_Of_Test.Boxes.back().Text, "(1) " + std::string(255 - 6, 'x'));
}

TEST_F(Messages, TheButtonPressedIsKeptAndAddedTextHasItsLine) {
    Host_Of_Test.Box_Answers = {Button_Yes, Button_No};
    EXPECT_EQ(Msg_Show(20), Button_Yes);
    EXPECT_EQ(Msg_Result, Button_Yes);
    EXPECT_EQ(Msg_Show_Text(20, "x"), Button_No);
    EXPECT_EQ(Msg_Result, Button_No);
    EXPECT_EQ(Host_Of_Test.Boxes.back().Text, "(20) ????\r\nx");
}
