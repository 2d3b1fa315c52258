// tests/simlink/test_fsconnect.cpp - the exchange with the simulator, and what its answers mean.
#include "simlink/fsconnect.h"

#include <limits>
#include <stdexcept>

#include "simlink/hex_text.h"
#include "support/program_test.h"
#include "support/rows.h"

namespace {

// A simulator with one answer, which counts its atoms.
class One_Answer : public Fsc_Carrier {
public:
    bool Available() override { return Present; }
    Long Send(Long Command, Long Argument) override {
        if (Throws) throw std::runtime_error("no more memory");
        Sent += std::to_string(Command) + " " + std::to_string(Argument) + " ";
        if (Result < 0) ++Atoms;
        return Result;
    }
    std::optional<std::string> Take_Atom(Long Atom) override {
        EXPECT_EQ(Atom, Result);
        --Atoms;
        return Name;
    }

    bool Present = true;
    bool Throws = false;
    Long Result = -16000;
    std::optional<std::string> Name;
    int Atoms = 0;
    std::string Sent;
};

class Fs_Connect : public Program_Test {
protected:
    ~Fs_Connect() override { EXPECT_EQ(Server.Atoms, 0) << "every atom is released"; }

    One_Answer Server;
    Fsc_Value Value = 7;
    std::string Text = "before";
    Long First = 5;
    Double Degrees = 1.25;

private:
    Carrier_Scope Scope_{Server};
};

std::string Hex_Of(Double X) {
    std::string Hex = "00000000";
    for (const unsigned char *P = reinterpret_cast<const unsigned char*>(&X), *End = P + sizeof X;
         P != End; ++P)
        for (const int Digit : {*P / 16, *P % 16}) Hex += "0123456789ABCDEF"[Digit];
    return Hex;
}

TEST_F(Fs_Connect, DecodesByTheLetter) {
    Expect_Rows("simulator", {{"Fsc_Get", [this](const Row_Cells& C) {
                                   Server.Name = C[0];
                                   if (Fsc_Get(9, C[1][0], Value, Text, First) != 0)
                                       return std::string("refused");
                                   const auto Written = [](auto X) { return std::to_string(X); };
                                   return std::visit(Written, Value) + " " + Text + " " +
                                          std::to_string(First);
                               }}});
    EXPECT_EQ(Hex_Bytes(std::string(600, 'A'))->size(), 255U);
    EXPECT_EQ(Hex_Bytes("0aF"), std::vector<Byte>{10}) << "an odd character does not count";
}

TEST_F(Fs_Connect, TellsTheStatusAndKeepsWhatWasThere) {
    const auto Status = [&] { return Fsc_Get(71, 'n', Value, Text, First); };
    Server.Name = Hex_Of(1.0);
    Server.Result = 5;
    EXPECT_EQ(Status(), 5);
    Server.Result = 0;
    EXPECT_EQ(Status(), 1);
    Server.Result = -16000;
    Server.Name.reset();
    EXPECT_EQ(Status(), 1);
    Server.Present = false;
    EXPECT_EQ(Status(), 1);
    EXPECT_FALSE(Fsc_Available());
    EXPECT_EQ(Server.Sent, "1 71 1 71 1 71 ");
    EXPECT_EQ(std::get<Long>(Value), 7);
    EXPECT_EQ(Text, "before");
    EXPECT_EQ(First, 5);
}

TEST_F(Fs_Connect, IdentifiesByPosition) {
    std::string Name;
    Long Major = 0, Minor = 0;
    Server.Name = "FSCON1f......0A......free text";
    EXPECT_EQ(Fsc_Identify(Name, Text, Major, Minor), 0);
    EXPECT_EQ(Name + "|" + Text, "FSCON|free text");
    EXPECT_EQ(Major, 31);
    EXPECT_EQ(Minor, 10);
    Server.Name = "FSC";
    EXPECT_EQ(Fsc_Identify(Name, Text, Major, Minor), 0);
    EXPECT_EQ(Name + "|" + Text, "FSC|");
    EXPECT_EQ(Server.Sent, "10 0 10 0 ");
    Server.Result = 3;
    EXPECT_EQ(Fsc_Identify(Name, Text, Major, Minor), 3);
}

TEST_F(Fs_Connect, ReadsThePosition) {
    Server.Name = Hex_Of(40007000.0 / 8.0);
    EXPECT_EQ(Fsc_Get_Latitude(Degrees), 0);
    EXPECT_EQ(Degrees, 45.0);
    Server.Name = Hex_Of(-281474976710656.0 / 2.0);
    EXPECT_EQ(Fsc_Get_Longitude(Degrees), 0);
    EXPECT_EQ(Degrees, -180.0);
    EXPECT_EQ(Server.Sent, "1 71 1 72 ");
    using Limits = std::numeric_limits<Double>;
    for (const Double Off : {1e300, -1e300, Limits::infinity(), Limits::quiet_NaN()}) {
        Server.Name = Hex_Of(Off);
        EXPECT_EQ(Fsc_Get_Latitude(Degrees), 1) << Off;
        EXPECT_EQ(Fsc_Get_Longitude(Degrees), 1) << Off;
    }
    Server.Result = 12;
    EXPECT_EQ(Fsc_Get_Latitude(Degrees), 12);
    EXPECT_EQ(Degrees, -180.0);
    EXPECT_TRUE(Host_Of_Test.Boxes.empty());
}

TEST_F(Fs_Connect, ShowsAnErrorOfItsOwn) {
    Server.Throws = true;
    EXPECT_EQ(Fsc_Get_Latitude(Degrees), 1);
    EXPECT_EQ(Fsc_Get_Longitude(Degrees), 1);
    ASSERT_EQ(Host_Of_Test.Boxes.size(), 2U);
    EXPECT_EQ(Host_Of_Test.Boxes[0].Text, "Error in routine fscGetLatitude!\r\nno more memory");
    EXPECT_EQ(Host_Of_Test.Boxes[1].Text, "Error in routine fscGetLongitude!\r\nno more memory");
    EXPECT_EQ(Host_Of_Test.Boxes[0].Style, Box_Stop);
}

}  // namespace
