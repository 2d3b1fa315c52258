// cli/json_host.h - the host of the command line, whose events are objects.
#pragma once

#include "cli/cli_host.h"

/// Prints for each event a line that is a JSON object: "event" is the word that the plain line
/// begins with, the other keys are its parts.
class Json_Host final : public Cli_Host {
public:
    using Cli_Host::Cli_Host;

    /// Prints what the report of a generation tells: an "output" a line, then the "end".
    void Print_Report();

protected:
    void Tell_Message(const Box& B) override;
    void Tell(std::string_view Event, std::string_view What) override;
};
