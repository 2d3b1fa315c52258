// ui/dialogs/frm_dir.cpp - the chooser of directories: a list of drives and one of directories.
#include "ui/dialogs/frm_dir.h"

#include "core/host.h"
#include "core/program.h"
#include "platform/paths.h"
#include "ui/dialogs/dialogs.h"
#include "ui/dialogs/dir_lists.h"

namespace {

class Dir_Form final : public Form {
public:
    Dir_Form() : Form("Frm_Dir") {
        Set_Title(Dir_Title);
        Add({.Name = "Lab_DblClick",
             .Words = {"Double-click on the directory", "Double-click sur le r\xE9pertoire"}});
        Add_Ok_Cancel(
            *this, [this] { Ok(); }, [this] { Close(Form_End::Closed); });
        Set_Layout(Column({Fields({"Path", "Drive1"}), "Lab_DblClick", "Dir1",
                           Buttons({"Cmd_Ok", "Cmd_Cancel"})}));
        On_Load = [this] { Load(); };
    }

private:
    void Load() {
        Dir_Cancelled = 1;
        Lists_.Show(Dir_Path.empty() ? App_Path : Dir_Path);
        Set_Focus("Dir1");
    }
    void Ok() {
        if (Dir_Path.empty()) return;
        Dir_Cancelled = 0;
        Close(Form_End::Ok);
    }
    static void Tell_Not_Ready(const std::string& Drive) {
        Plain_Box(Shown_Path(Drive) + In_Language(" is not ready", " n'est pas pr\xEAt"));
    }

    Dir_Lists Lists_{
        *this, {.On_Dir = [this] { Dir_Path = Lists_.Dir(); }, .On_Not_Ready = Tell_Not_Ready}};
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
