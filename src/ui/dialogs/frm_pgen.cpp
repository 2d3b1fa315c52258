// ui/dialogs/frm_pgen.cpp - the general parameters: the simulator's directory and the language.
#include "core/host.h"
#include "core/program.h"
#include "core/settings.h"
#include "core/view_calls.h"
#include "platform/files.h"
#include "platform/locale.h"
#include "platform/settings_file.h"
#include "ui/dialogs/dialogs.h"
#include "ui/dialogs/frm_dir.h"
#include "ui/form/field_rules.h"

namespace {

std::string With_Backslash(std::string Dir) {
    if (!Dir.empty() && !Dir.ends_with('\\')) Dir += '\\';
    return Dir;
}

// The computer's own language while nobody has chosen one. The settings may hold other things
// by then, such as where the simulator was found.
std::string First_Language() {
    if (Fl1Fois != 0 || !Setting_Read(Ini_File, "Terrafold", "Language", "").empty())
        return Language;
    const std::string System = System_Language();
    if (System.empty()) return Language;
    return System == "fr" ? "FR" : "US";
}

class PGen_Form final : public Form {
public:
    PGen_Form() : Form("Frm_PGen", {"Main parameters", "Param\xE8tres g\xE9n\xE9raux"}) {
        Add({.Kind = Control_Kind::Text,
             .Name = "DirFS",
             .Words = {"FS9 Directory :", "R\xE9pertoire FS9 :"},
             .Tip_Words = {"Double-click to choose", "Double-click pour choisir"},
             .Rule = {.Accept = [this](const std::string& Text) { return Take_Dir(Text); },
                      .Held = [this] { return New_DirFS_; },
                      .Allowed = Dir_That_Is_There},
             .Columns = 48,
             .On_Choose = [this] { Choose(); }});
        Add({.Kind = Control_Kind::Frame, .Name = "Fram_Lang", .Words = {"Language", "Langage"}});
        Add({.Kind = Control_Kind::Options,
             .Name = "Opt_Lang",
             .Item_Words = {{"French",
                             "Fran\xE7"
                             "ais"},
                            {"English", "Anglais"}},
             .On_Click = [this] { Change_Language(); }});
        Add_Ok_Cancel(
            *this, [this] { Ok(); }, [this] { Close(Form_End::Closed); });
        Add_Help(*this);
        Set_Layout(Column({Fields({"DirFS"}), Frame("Fram_Lang", {"Opt_Lang"}),
                           Buttons({"Cmd_Ok", "Cmd_Cancel", "Cmd_Help"})}));
        On_Load = [this] { Load(); };
        On_Unload = [this] {
            if (End() != Form_End::Ok) Speak(Former_Language_);
        };
    }

private:
    void Load() {
        New_DirFS_ = DirFS;
        New_Language_ = First_Language();
        Set_Text("DirFS", New_DirFS_);
        Set_Value("Opt_Lang", New_Language_ == "US" ? 1 : 0);
        Former_Language_ = ::Language;
        Speak(New_Language_);
        Set_Focus("DirFS");
    }
    // While the dialog is up the whole program speaks the language that it shows.
    void Speak(const std::string& Lang) {
        ::Language = Lang;
        Set_Language(Lang);
        Call(The_View.Apply_Language);
    }
    // No directory at all is an answer too: scenery is generated without the simulator.
    bool Take_Dir(const std::string& Text) {
        if (!Text.empty() && !Dir_Exists(Text)) return false;
        New_DirFS_ = With_Backslash(Text);
        return true;
    }
    void Choose() {
        Dir_Title = In_Language("FS9 directory", "R\xE9pertoire FS9");
        std::string Path = New_DirFS_;
        Int Cancelled = 1;
        Choose_Dir(Path, Cancelled);
        if (Cancelled != 0) return;
        New_DirFS_ = With_Backslash(Path);
        Set_Text("DirFS", New_DirFS_);
    }
    void Change_Language() {
        New_Language_ = (*this)["Opt_Lang"].Value == 1 ? "US" : "FR";
        Speak(New_Language_);
    }
    void Ok() {
        DirFS = New_DirFS_;
        Dir_Texture = DirFS.empty() ? "" : DirFS + "Scenery\\world\\Texture";
        Fl1Fois = 1;
        const bool Kept = Setting_Put("DirFS", DirFS) && Setting_Put("Language", ::Language) &&
                          Setting_Put("Fl1Fois", "1");
        if (!Kept)
            Plain_Box(In_Language("The settings could not be saved",
                                  "Les param\xE8tres n'ont pas pu \xEAtre enregistr\xE9s"));
        Close(Form_End::Ok);
    }

    std::string New_DirFS_, New_Language_, Former_Language_;
};

}  // namespace

std::unique_ptr<Form> Make_Frm_PGen() {
    return std::make_unique<PGen_Form>();
}
