// simlink/scripted.cpp - answers of a simulator that is not there.
#include "simlink/scripted.h"

namespace {

constexpr Long Identity = -1;  // the one atom that it gives out

}  // namespace

void Scripted_Simulator::Fly_To(Double Lat, Double Lon) {
    State_ = State::Flying;
    Lat_ = Lat;
    Lon_ = Lon;
}

void Scripted_Simulator::Fail(Long Result) {
    State_ = State::Failing;
    Result_ = Result;
}

void Scripted_Simulator::Vanish() {
    State_ = State::Absent;
}

bool Scripted_Simulator::Available() {
    return State_ != State::Absent;
}

Long Scripted_Simulator::Send(Long Command, Long) {
    if (State_ == State::Failing) return Result_;
    return State_ == State::Flying && Command == Fsc_Cmd_Identify ? Identity : 0;
}

std::optional<std::string> Scripted_Simulator::Take_Atom(Long Atom) {
    if (State_ != State::Flying || Atom != Identity) return std::nullopt;
    return "Plain0100000001000000of a script";
}

std::optional<Double> Scripted_Simulator::Degrees(Long Item) {
    if (State_ != State::Flying) return std::nullopt;
    return Item == Fsc_Item_Latitude ? Lat_ : Lon_;
}
