// gen/generation_report.cpp - the report in words.
#include "gen/generation_report.h"

#include <string_view>

#include "core/program.h"
#include "core/resets.h"
#include "platform/paths.h"
#include "platform/text1252.h"

namespace {

const bool Is_Reset = At_Reset([] { The_Report = {}; });

// With a blank between thousands.
std::string Size_Text(std::uint64_t Size) {
    std::string Digits = std::to_string(Size);
    for (std::size_t At = Digits.size(); At > 3;) Digits.insert(At -= 3, " ");
    return Digits + In_Language(" bytes", " octets");
}

std::string Facts_Text(const Report_File& F) {
    if (!F.Found) return In_Language("is not there", "n'est pas l\xE0");
    return Size_Text(F.Found->Size) + ", " + F.Found->Time;
}

std::string State_Text(const Report_Output& O) {
    switch (O.State) {
        case Output_State::Missing:
            return In_Language("MISSING, though its tool has run",
                               "ABSENT, bien que son outil ait tourn\xE9");
        case Output_State::Not_Started:
            return In_Language("not made, its tool could not be started",
                               "non produit, son outil n'a pas pu d\xE9marrer");
        case Output_State::Passed_Over:
            return In_Language("passed over", "omis");
        case Output_State::Ended:
            return In_Language("not made, its tool was ended",
                               "non produit, son outil a \xE9t\xE9 arr\xEAt\xE9");
        default:
            return Facts_Text(O);
    }
}

// "0:07" or "1:02:03" would hide how short most are.
std::string Time_Text(Double Seconds) {
    const Long Tenths = Round_Lng(Seconds * 10);
    if (Tenths < 600) return std::to_string(Tenths / 10) + "." + std::to_string(Tenths % 10) + " s";
    return std::to_string(Tenths / 600) + " min " + std::to_string(Tenths / 10 % 60) + " s";
}

std::string Missing_Text() {
    std::string Names;
    for (const std::string& Path : The_Report.Missing_Tools)
        Names += (Names.empty() ? "" : ", ") + Path.substr(Path.rfind('\\') + 1);
    return Names;
}

}  // namespace

std::string Output_Text(const Report_Output& O) {
    return Shown_Path(O.Path) + "   " + State_Text(O);
}

std::string Source_Text(const Report_File& F) {
    return Shown_Path(F.Path) + "   " + Facts_Text(F);
}

std::string Message_Text(const Box& B) {
    return As_One_Line(B.Text);
}

std::string Summary_Text() {
    const Generation_Report& R = The_Report;
    std::string Text;
    if (R.Was_Cancelled)
        Text = In_Language("Cancelled; what is told below has been written.",
                           "Annul\xE9; ce qui suit a \xE9t\xE9 \xE9"
                           "crit.");
    else if (R.Choice == Tool_Choice::Sources_Only)
        Text = In_Language("The sources are written; older outputs stay as they are.",
                           "Les sources sont \xE9"
                           "crites; les anciens fichiers de sortie restent.");
    else if (R.Choice == Tool_Choice::Without_Missing)
        Text = In_Language("Done without what needs these tools, whose older outputs stay: ",
                           "Termin\xE9 sans ce qui demande ces outils, les anciens fichiers "
                           "restent : ") +
               Missing_Text() + ".";
    else
        Text = In_Language("The generation has ended.",
                           "La g\xE9n\xE9ration est termin\xE9"
                           "e.");
    return Text + "  " + Time_Text(R.Seconds);
}

std::string Report_Text() {
    std::string Text = Summary_Text() + "\r\n";
    const auto Head = [&Text](const char* English, const char* French) {
        Text += std::string("\r\n") + In_Language(English, French) + "\r\n";
    };
    Head("Outputs", "Fichiers de sortie");
    for (const Report_Output& O : The_Report.Outputs) Text += "  " + Output_Text(O) + "\r\n";
    Head("Messages", "Messages");
    for (const Box& B : The_Report.Messages) Text += "  " + Message_Text(B) + "\r\n";
    Head("Sources", "Sources");
    for (const Report_File& F : The_Report.Sources) Text += "  " + Source_Text(F) + "\r\n";
    return Text;
}
