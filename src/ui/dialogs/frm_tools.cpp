// ui/dialogs/frm_tools.cpp - outside tools that are missing, and what to make without them.
#include "platform/paths.h"
#include "ui/dialogs/dialogs.h"
#include "ui/dialogs/tool_choice.h"

namespace {

class Tools_Form final : public Form {
public:
    Tools_Form() : Form("Frm_Tools", {"Missing tools", "Outils absents"}) {
        Add({.Name = "LTools",
             .Words = {"This project needs outside tools that are not there or cannot be started.",
                       "Ce projet demande des outils absents ou qui ne peuvent pas d\xE9marrer."}});
        Add({.Kind = Control_Kind::List,
             .Name = "Lst_Tools",
             .Words = {"They belong here:", "Leur place :"},
             .Columns = 60,
             .Value = -1,
             .Items = Paths()});
        Add_Choice("Cmd_Sources",
                   {"Write the sources only (older outputs stay)",
                    "\xC9"
                    "crire les sources seulement (les anciens fichiers restent)"},
                   {"No output is touched", "Aucun fichier de sortie n'est touch\xE9"},
                   Tool_Choice::Sources_Only);
        Add_Choice("Cmd_Without",
                   {"Go on without these outputs (theirs stay)",
                    "Continuer sans ces fichiers (les anciens restent)"},
                   {"Their older outputs stay", "Leurs anciens fichiers de sortie restent"},
                   Tool_Choice::Without_Missing);
        Add({.Kind = Control_Kind::Button,
             .Name = "Cmd_Cancel",
             .Words = {"Stop", "Arr\xEAter"},
             .Role = Button_Role::Cancel,
             .On_Click = [this] { Close(Form_End::Closed); }});
        Set_Layout(
            Column({"LTools", "Lst_Tools", "Cmd_Sources", "Cmd_Without", Buttons({"Cmd_Cancel"})}));
        On_Load = [this] { Set_Focus("Cmd_Sources"); };
    }

private:
    static std::vector<std::string> Paths() {
        std::vector<std::string> Shown;
        for (const std::string& Path : The_Report.Missing_Tools) Shown.push_back(Shown_Path(Path));
        return Shown;
    }
    void Add_Choice(const char* Name, Wording Words, Wording Tip, Tool_Choice Choice) {
        Add({.Kind = Control_Kind::Button,
             .Name = Name,
             .Words = Words,
             .Tip_Words = Tip,
             .On_Click = [this, Choice] {
                 The_Tool_Choice = Choice;
                 Close(Form_End::Ok);
             }});
    }
};

}  // namespace

std::unique_ptr<Form> Make_Frm_Tools() {
    return std::make_unique<Tools_Form>();
}
