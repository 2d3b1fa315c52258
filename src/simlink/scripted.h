// simlink/scripted.h - a simulator that does what a script says.
#pragma once

#include "simlink/fsconnect.h"

/// At first no simulator.
class Scripted_Simulator : public Fsc_Carrier {
public:
    /// The aircraft is there from now on; degrees come back to the last bit.
    void Fly_To(Double Lat, Double Lon);
    /// Every command gives this result from now on.
    void Fail(Long Result);
    void Vanish();

    bool Available() override;
    Long Send(Long Command, Long Argument) override;
    std::optional<std::string> Take_Atom(Long Atom) override;
    std::optional<Double> Degrees(Long Item) override;

private:
    enum class State { Absent, Flying, Failing };
    State State_ = State::Absent;
    Double Lat_ = 0.0;
    Double Lon_ = 0.0;
    Long Result_ = 0;
};
