// ui/dialogs/frm_dir.cpp - the chooser of directories: a list of drives and one of directories.
#include "ui/dialogs/frm_dir.h"

#include <algorithm>
#include <vector>

#include "core/host.h"
#include "core/program.h"
#include "platform/files.h"
#include "platform/paths.h"
#include "platform/text1252.h"
#include "ui/dialogs/dialogs.h"

namespace {

constexpr char Up[] = "..";

// Path without a final backslash, roots excepted.
std::string Bare(std::string Path) {
    const bool Is_Root = Path == "\\" || (Path.size() == 3 && Path[1] == ':');
    if (!Is_Root && Path.ends_with('\\')) Path.pop_back();
    return Path;
}

std::string Joined(const std::string& Dir, const std::string& Name) {
    return Dir.ends_with('\\') ? Dir + Name : Dir + "\\" + Name;
}

// Path, or the directory round it that is there; App_Path when none is.
std::string There_Of(std::string Path) {
    while (!Path.empty() && !Dir_Exists(Path)) {
        const std::string Above = Bare(std::string(Path_Dir(Bare(Path))));
        if (Above == Path) break;
        Path = Above;
    }
    return Path.empty() || !Dir_Exists(Path) ? App_Path : Path;
}

// The root of Path among Drives: the longest that begins it, 0 when there is none.
std::size_t Root_Of(const std::string& Path, const std::vector<std::string>& Drives) {
    std::size_t Best = 0;
    for (std::size_t I = 0; I < Drives.size(); ++I) {
        const std::string_view Start = std::string_view(Path).substr(0, Drives[I].size());
        if (Equal_No_Case(Start, Drives[I]) && Drives[I].size() > Drives[Best].size()) Best = I;
    }
    return Best;
}

class Dir_Form final : public Form {
public:
    Dir_Form() : Form("Frm_Dir"), Drives_(Drive_List()) {
        Set_Title(Dir_Title);
        Add({.Name = "Lab_DblClick",
             .Words = {"Double-click on the directory", "Double-click sur le r\xE9pertoire"}});
        Add({.Kind = Control_Kind::Text, .Name = "Path", .Columns = 48, .Read_Only = true});
        Add({.Kind = Control_Kind::Combo,
             .Name = "Drive1",
             .Words = {"Drive:", "Lecteur :"},
             .Items = Drives_,
             .On_Click = [this] { Change_Drive(); }});
        Add({.Kind = Control_Kind::List,
             .Name = "Dir1",
             .Columns = 48,
             .Value = -1,
             .On_Double_Click = [this] { Go_Into(); }});
        Add_Ok_Cancel(
            *this, [this] { Ok(); }, [this] { Close(Form_End::Closed); });
        Set_Layout(Column({"Lab_DblClick", Fields({"Drive1"}), "Path", "Dir1",
                           Buttons({"Cmd_Ok", "Cmd_Cancel"})}));
        On_Load = [this] { Load(); };
    }

private:
    void Load() {
        Dir_Cancelled = 1;
        if (Dir_Path.empty()) Dir_Path = App_Path;
        Show(There_Of(Dir_Path));
        Set_Focus("Dir1");
    }
    void Show(const std::string& Path) {
        Dir_Path = Bare(Path);
        std::vector<std::string> Names = Dir_Dirs(Dir_Path);
        const bool Is_Root = Dir_Path.ends_with('\\');
        if (!Is_Root) Names.insert(Names.begin(), Up);
        Set_Text("Path", Dir_Path);
        Set_Value("Drive1", static_cast<Long>(Root_Of(Dir_Path, Drives_)));
        Set_Items("Dir1", std::move(Names), -1);
    }
    // A drive that is not ready leaves everything as it was.
    void Change_Drive() {
        const std::string& Drive = Drives_[static_cast<std::size_t>((*this)["Drive1"].Value)];
        if (!Dir_Exists(Drive)) {
            Plain_Box(Drive + In_Language(" is not ready", " n'est pas pr\xEAt"));
            return Show(Dir_Path);
        }
        Show(Drive);
    }
    void Go_Into() {
        const Control& List = (*this)["Dir1"];
        if (List.Value < 0) return;
        const std::string Name = List.Items[static_cast<std::size_t>(List.Value)];
        const std::string To =
            Name == Up ? std::string(Path_Dir(Dir_Path)) : Joined(Dir_Path, Name);
        if (Dir_Exists(To)) Show(To);  // it may have gone since it was listed
    }
    void Ok() {
        if (Dir_Path.empty()) return;
        Dir_Cancelled = 0;
        Close(Form_End::Ok);
    }

    std::vector<std::string> Drives_;
};

}  // namespace

std::unique_ptr<Form> Make_Frm_Dir() {
    return std::make_unique<Dir_Form>();
}

void Choose_Dir(std::string& Path, Int& Cancelled) {
    Dir_Path = Path;
    Dir_Cancelled = 1;
    The_Host().Run_Form("Frm_Dir");
    Cancelled = Dir_Cancelled;
    if (Cancelled == 0) Path = Dir_Path;
}
