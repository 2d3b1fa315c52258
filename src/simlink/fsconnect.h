// simlink/fsconnect.h - values of the running simulator, asked for one by one.
//
// A command goes to the simulator's server and gives a signed result: above 0 an error number,
// 0 a failure, below 0 an atom whose name holds the answer as text. How the two operations of
// this exchange reach the simulator is the affair of a carrier. A status is 0 when a value was
// read, the server's error number, or 1 when there is no server or no sound answer; what was to
// be filled then keeps what it had. Nothing here shows a message, unless told otherwise.
#pragma once

#include <optional>
#include <string>
#include <variant>

#include "core/numbers.h"

inline constexpr char Fsc_Window_Class[] = "FSCONNECT8";
inline constexpr char Fsc_Message_Name[] = "WM_FSCONNECT";

/// What is asked: who answers (the argument is not used), and the value of the argument's number.
inline constexpr Long Fsc_Cmd_Identify = 10;
inline constexpr Long Fsc_Cmd_Read = 1;
inline constexpr Long Fsc_Item_Latitude = 71;
inline constexpr Long Fsc_Item_Longitude = 72;

class Fsc_Carrier {
public:
    virtual ~Fsc_Carrier() = default;
    /// Gets ready without waiting, as far as it can; what comes next may do without.
    virtual void Open() {}
    /// Lets go of what it holds until the next exchange.
    virtual void Close() {}
    /// Whether a server is there now.
    virtual bool Available() = 0;
    /// The signed result of a command.
    virtual Long Send(Long Command, Long Argument) = 0;
    /// The name of an atom, which is released. Nothing when it has none.
    virtual std::optional<std::string> Take_Atom(Long Atom) = 0;
    /// The degrees of a position's item, of a carrier that has them and no scaled values.
    virtual std::optional<Double> Degrees(Long) { return std::nullopt; }
};

/// The carrier in use: at first that of the system.
Fsc_Carrier& The_Carrier();

/// Makes C the carrier for the life of this object, then puts the former one back.
class Carrier_Scope {
public:
    explicit Carrier_Scope(Fsc_Carrier& C);
    ~Carrier_Scope();
    Carrier_Scope(const Carrier_Scope&) = delete;
    Carrier_Scope& operator=(const Carrier_Scope&) = delete;

private:
    Fsc_Carrier* Former_;
};

/// To be called before the first exchange of a series and behind the last.
void Fsc_Open();
void Fsc_Close();

bool Fsc_Available();

/// Who answers: a name, a text, and the two numbers of its version.
Long Fsc_Identify(std::string& Name, std::string& Text, Long& Major, Long& Minor);

using Fsc_Value = std::variant<Double, Long>;

/// Reads the value numbered Item: a Double for the letters "n" and "b", a Long for "e", "f",
/// "d", "o" and "p", in either case. Text is the answer's hexadecimal text without its first 8
/// characters, which are First_Long. Another letter gives status 1.
Long Fsc_Get(Long Item, char Type_Letter, Fsc_Value& Value, std::string& Text, Long& First_Long);

/// The aircraft's position. A value that is not finite or off the globe counts as no sound
/// answer. An error of the program itself is shown in a box and gives status 1.
Int Fsc_Get_Latitude(Double& Degrees);
Int Fsc_Get_Longitude(Double& Degrees);
