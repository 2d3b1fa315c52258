// ui/dialogs/frm_report.cpp - what became of the last generation. It stands beside the map, so that
// the place of a message can be looked at.
#include <algorithm>

#include "core/host.h"
#include "core/model.h"
#include "core/program.h"
#include "gen/generation_report.h"
#include "gen/kept_outputs.h"
#include "gen/restore_outputs.h"
#include "ui/canvas/view.h"
#include "ui/dialogs/dialogs.h"

namespace {

constexpr Int Columns = 90;

class Report_Form final : public Form {
public:
    Report_Form()
        : Form("Frm_Report", {"Report of the generation", "Rapport de g\xE9n\xE9ration"}) {
        Add({.Name = "LSummary"});
        Add({.Kind = Control_Kind::Tabs, .Name = "Pages"});
        Add_Page("Tab_Outputs", {"Outputs", "Fichiers de sortie"}, "Lst_Outputs");
        Add_Page("Tab_Messages", {"Messages", "Messages"}, "Lst_Messages");
        Add_Page("Tab_Sources", {"Sources", "Sources"}, "Lst_Sources");
        Handlers("Lst_Messages").On_Click = [this] { Follow_Message(); };
        Handlers("Lst_Messages").On_Double_Click = [this] { Centre(); };
        Add_Button("Cmd_Show", {"Show on the map", "Montrer sur la carte"}, [this] { Centre(); });
        Add_Button("Cmd_Folder",
                   {"Open the folder of the sources", "Ouvrir le dossier des sources"},
                   [] { The_Host().Show_Folder(App_Path); });
        Add_Button("Cmd_Copy", {"Copy as text", "Copier le texte"},
                   [] { The_Host().Copy_Text(Report_Text()); });
        Add_Button("Cmd_Restore",
                   {"Bring the older outputs back", "Remettre les anciens fichiers de sortie"},
                   [this] { Restore(); });
        Add({.Kind = Control_Kind::Button,
             .Name = "Cmd_Cancel",
             .Words = {"Close", "Fermer"},
             .Role = Button_Role::Cancel,
             .On_Click = [this] { Close(Form_End::Closed); }});
        Set_Layout(Column(
            {"LSummary",
             Tabs("Pages", {Tab("Tab_Outputs", {"Lst_Outputs", Row({"Cmd_Restore", Space()})}),
                            Tab("Tab_Messages", {"Lst_Messages", Row({"Cmd_Show", Space()})}),
                            Tab("Tab_Sources", {"Lst_Sources", Row({"Cmd_Folder", Space()})})}),
             Buttons({"Cmd_Copy", "Cmd_Cancel"})}));
        On_Load = [this] { Load(); };
    }

private:
    void Add_Page(const char* Page, Wording Words, const char* List) {
        Add({.Kind = Control_Kind::Tab, .Name = Page, .Words = Words});
        Add({.Kind = Control_Kind::List,
             .Name = List,
             .Tip_Words = Words,
             .Columns = Columns,
             .Value = -1});
    }
    void Add_Button(const char* Name, Wording Words, std::function<void()> Run) {
        Add({.Kind = Control_Kind::Button,
             .Name = Name,
             .Words = Words,
             .On_Click = std::move(Run)});
    }

    template <typename Row>
    void Show_All(const char* Page, const char* Name, const std::vector<Row>& Rows,
                  std::string (*Text)(const Row& R)) {
        std::vector<std::string> Items;
        for (const Row& R : Rows) Items.push_back(Text(R));
        Set_Caption(Page, (*this)[Page].Words.In(Language()) + std::string(" (") +
                              std::to_string(Items.size()) + ")");
        Set_Items(Name, std::move(Items), -1);
    }

    // What needs a look is in front, the first message with a place at hand.
    void Load() {
        const auto& Messages = The_Report.Messages;
        Set_Caption("LSummary", Summary_Text());
        Show_All("Tab_Outputs", "Lst_Outputs", The_Report.Outputs, Output_Text);
        Show_All("Tab_Messages", "Lst_Messages", Messages, Message_Text);
        Show_All("Tab_Sources", "Lst_Sources", The_Report.Sources, Source_Text);
        const auto Found =
            std::ranges::find_if(Messages, [](const Box& B) { return B.Place.has_value(); });
        if (Found != Messages.end())
            Set_Value("Lst_Messages", static_cast<Long>(Found - Messages.begin()));
        const char* Front = !Messages.empty()            ? "Tab_Messages"
                            : The_Report.Outputs.empty() ? "Tab_Sources"
                                                         : "Tab_Outputs";
        Set_Value("Pages", Page_Number(Front));
        Follow_Message();
        Set_Enabled("Cmd_Restore", Can_Restore());
        Set_Focus("Cmd_Cancel");
    }

    // With sources alone what is kept is not of this generation.
    static bool Can_Restore() {
        return The_Report.Choice != Tool_Choice::Sources_Only &&
               std::ranges::any_of(Kept_Outputs(),
                                   [](const Kept_Output& K) { return !K.File.empty(); });
    }

    const Box* Chosen() const {
        const Long I = (*this)["Lst_Messages"].Value;
        return I < 0 ? nullptr : &The_Report.Messages[static_cast<std::size_t>(I)];
    }
    void Follow_Message() {
        const Box* B = Chosen();
        Set_Enabled("Cmd_Show", B != nullptr && B->Place.has_value());
    }
    void Centre() {
        const Box* B = Chosen();
        if (B == nullptr || !B->Place) return;
        View_Center_On_Point(
            {.X = static_cast<Double>(B->Place->X), .Y = static_cast<Double>(B->Place->Y)});
        View_Redraw();
    }
    // A second time undoes it.
    void Restore() {
        Restore_Outputs();
        for (Report_Output& O : The_Report.Outputs) {
            O.Found = File_Look(O.Path);
            O.State = Output_State::Made;
        }
        Show_All("Tab_Outputs", "Lst_Outputs", The_Report.Outputs, Output_Text);
    }
};

}  // namespace

std::unique_ptr<Form> Make_Frm_Report() {
    return std::make_unique<Report_Form>();
}
