// cli/json_host.cpp - events and the report as objects.
#include "cli/json_host.h"

#include "cli/json.h"
#include "gen/generation_report.h"
#include "platform/paths.h"

namespace {

const char* State_Word(const Report_Output& O) {
    switch (O.State) {
        case Output_State::Missing:
            return "missing";
        case Output_State::Not_Started:
            return "not started";
        case Output_State::Ended:
            return "ended";
        case Output_State::Passed_Over:
            return "passed over";
        default:
            return O.Found ? "written" : "taken as run";
    }
}

}  // namespace

void Json_Host::Tell_Message(const Box& B) {
    Json_Line L;
    L.Put("event", "message").Raw("number", std::to_string(B.Num)).Put("text", B.Text);
    if (B.Place) L.Raw("x", std::to_string(B.Place->X)).Raw("y", std::to_string(B.Place->Y));
    Print_Utf8(L.Done());
}

void Json_Host::Tell(std::string_view Event, std::string_view What) {
    const bool Is_Run = Event == "run";
    Print_Utf8(Json_Line().Put("event", Event).Put(Is_Run ? "command" : "path", What).Done());
}

void Json_Host::Print_Report() {
    for (const Report_Output& O : The_Report.Outputs) {
        Json_Line L;
        L.Put("event", "output").Put("path", Shown_Path(O.Path)).Put("state", State_Word(O));
        if (O.Found) L.Raw("size", std::to_string(O.Found->Size)).Put("time", O.Found->Time);
        Print_Utf8(L.Done());
    }
    Print_Utf8(Json_Line()
                   .Put("event", "end")
                   .Raw("messages", std::to_string(The_Report.Messages.size()))
                   .Raw("seconds", Json_Number(The_Report.Seconds))
                   .Done());
}
