// simlink/fsconnect.cpp - the exchange with the simulator, and its answers decoded.
#include "simlink/fsconnect.h"

#include <charconv>
#include <cmath>
#include <cstring>
#include <exception>
#include <span>
#include <string_view>

#include "core/host.h"
#include "simlink/hex_text.h"
#include "simlink/system_carrier.h"

namespace {

constexpr Long No_Answer = 1;

Fsc_Carrier* Present = nullptr;

// The answer to a command. Without one the status is not 0.
struct Answer {
    Long Status = No_Answer;
    std::string Text;
};

Answer Exchange(Long Command, Long Argument) {
    Fsc_Carrier& Carrier = The_Carrier();
    if (!Carrier.Available()) return {};
    const Long Result = Carrier.Send(Command, Argument);
    if (Result >= 0) return {Result == 0 ? No_Answer : Result, {}};
    std::optional<std::string> Name = Carrier.Take_Atom(Result);
    if (!Name) return {};
    return {0, std::move(*Name)};
}

// Columns First to Last of Text, from 1; fewer where it is shorter.
std::string_view Columns(std::string_view Text, std::size_t First, std::size_t Last) {
    if (Text.size() < First) return {};
    return Text.substr(First - 1, Last - First + 1);
}

// The hexadecimal number at the head of Text; 0 without one.
Long Hex_Number(std::string_view Text) {
    std::uint32_t X = 0;
    std::from_chars(Text.data(), Text.data() + Text.size(), X, 16);
    return static_cast<Long>(X);
}

// A number of type T at place At of Bytes, as the machine holds it.
template <typename T>
std::optional<T> Number_At(std::span<const Byte> Bytes, std::size_t At) {
    T X;
    if (Bytes.size() < At + sizeof X) return {};
    std::memcpy(&X, Bytes.data() + At, sizeof X);
    return X;
}

std::optional<Fsc_Value> Value_Of(std::span<const Byte> Bytes, char Letter) {
    constexpr std::size_t Place = 4;
    const char Small = Letter >= 'A' && Letter <= 'Z' ? static_cast<char>(Letter + 32) : Letter;
    if (Small == 'n' || Small == 'b') return Number_At<Double>(Bytes, Place);
    if (std::string_view("efdop").find(Small) == std::string_view::npos) return {};
    return Number_At<Long>(Bytes, Place);
}

// One coordinate of the aircraft: Item counts Circle for 360 degrees.
Int Get_Degrees(Long Item, Double Circle, Double Limit, Double& Degrees) {
    std::optional<Double> Read = The_Carrier().Degrees(Item);
    if (!Read) {
        Fsc_Value Value;
        std::string Text;
        Long First = 0;
        const Long Status = Fsc_Get(Item, 'n', Value, Text, First);
        if (Status != 0) return Round_Int(Status);
        Read = std::get<Double>(Value) / Circle * 360.0;
    }
    if (!(std::fabs(*Read) <= Limit)) return No_Answer;
    Degrees = *Read;
    return 0;
}

Int Get_Shown(const char* Routine, Long Item, Double Circle, Double Limit, Double& Degrees) try {
    return Get_Degrees(Item, Circle, Limit, Degrees);
} catch (const std::exception& Error) {
    The_Host().Show_Box(
        {.Text = "Error in routine " + std::string(Routine) + "!\r\n" + Error.what(),
         .Style = Box_Stop});
    return No_Answer;
}

}  // namespace

Fsc_Carrier& The_Carrier() {
    return Present != nullptr ? *Present : System_Carrier();
}

Carrier_Scope::Carrier_Scope(Fsc_Carrier& C) : Former_(Present) {
    Present = &C;
}

Carrier_Scope::~Carrier_Scope() {
    Present = Former_;
}

void Fsc_Open() {
    The_Carrier().Open();
}

void Fsc_Close() {
    The_Carrier().Close();
}

bool Fsc_Available() {
    return The_Carrier().Available();
}

Long Fsc_Identify(std::string& Name, std::string& Text, Long& Major, Long& Minor) {
    const Answer A = Exchange(Fsc_Cmd_Identify, 0);
    if (A.Status != 0) return A.Status;
    Name = Columns(A.Text, 1, 5);
    Major = Hex_Number(Columns(A.Text, 6, 7));
    Minor = Hex_Number(Columns(A.Text, 14, 15));
    Text = Columns(A.Text, 22, A.Text.size());
    return 0;
}

Long Fsc_Get(Long Item, char Type_Letter, Fsc_Value& Value, std::string& Text, Long& First_Long) {
    const Answer A = Exchange(Fsc_Cmd_Read, Item);
    if (A.Status != 0) return A.Status;
    const std::optional<std::vector<Byte>> Bytes = Hex_Bytes(A.Text);
    if (!Bytes) return No_Answer;
    const std::optional<Fsc_Value> Read = Value_Of(*Bytes, Type_Letter);
    if (!Read) return No_Answer;
    Value = *Read;
    First_Long = *Number_At<Long>(*Bytes, 0);
    Text = A.Text.substr(8);
    return 0;
}

Int Fsc_Get_Latitude(Double& Degrees) {
    return Get_Shown("fscGetLatitude", Fsc_Item_Latitude, 40007000.0, 90.0, Degrees);
}

Int Fsc_Get_Longitude(Double& Degrees) {
    constexpr Double Two_To_48 = 281474976710656.0;
    return Get_Shown("fscGetLongitude", Fsc_Item_Longitude, Two_To_48, 180.0, Degrees);
}
