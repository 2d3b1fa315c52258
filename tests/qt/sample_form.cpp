// tests/qt/sample_form.cpp - a form with a control of every kind.
#include "sample_form.h"

#include <algorithm>

namespace {

using Kind = Control_Kind;

bool Is_Whole(const std::string& Text) {
    return !Text.empty() &&
           std::all_of(Text.begin(), Text.end(), [](char C) { return '0' <= C && C <= '9'; });
}

void Add_Entries(Sample& S) {
    Form& F = S.F;
    const auto Note = [&S](const char* Word) { return [&S, Word] { S.Log += Word; }; };
    F.Add({.Kind = Kind::Text,
           .Name = "Field",
           .Words = {"A && B", "A && B"},
           .On_Change = Note("typed ")});
    F.Add({.Kind = Kind::Number,
           .Name = "Number",
           .Words = {"Number:", "Nombre:"},
           .Rule = {.Accept =
                        [&S](const std::string& Text) {
                            if (!Is_Whole(Text)) return false;
                            S.Held = Text;
                            return true;
                        },
                    .Held = [&S] { return S.Held; }},
           .Columns = 6,
           .Text = "12"});
    F.Add({.Kind = Kind::Text,
           .Name = "Path",
           .Words = {"Path:", "Chemin:"},
           .Read_Only = true,
           .On_Click = Note("path "),
           .On_Choose = Note("chooser ")});
    F.Add({.Kind = Kind::Check,
           .Name = "Chk",
           .Words = {"Check", "Cocher"},
           .On_Click = Note("check ")});
    F.Add({.Kind = Kind::Options,
           .Name = "Opt",
           .Words = {"Options", "Options"},
           .Item_Words = {{"One", "Un"}, {"Two", "Deux"}, {"Three", "Trois"}},
           .On_Click = Note("option ")});
    F.Add({.Kind = Kind::Options, .Name = "Opt_Colour", .Colours = {0xFF0000, 0x00FF00}});
    F.Add({.Kind = Kind::Options,
           .Name = "Opt_Part",
           .Item_Words = {{"Class", "Classe"}, {"Other", "Autre"}},
           .On_Click = Note("part ")});
    F.Add({.Kind = Kind::List,
           .Name = "List",
           .Items = {"first", "second", "third"},
           .On_Click = Note("row "),
           .On_Change = Note("list "),
           .On_Double_Click = Note("list-twice ")});
    F.Add({.Kind = Kind::Combo,
           .Name = "Cbo",
           .Items = {"red", "green"},
           .On_Change = Note("combo ")});
}

void Add_Rest(Sample& S) {
    Form& F = S.F;
    const auto Note = [&S](const char* Word) { return [&S, Word] { S.Log += Word; }; };
    F.Add({.Name = "Lab", .Words = {"Label", "Libell\xE9"}});
    F.Add({.Kind = Kind::Frame, .Name = "Fram", .Words = {"Frame", "Cadre"}});
    F.Add({.Kind = Kind::Tabs, .Name = "Tabs", .On_Change = Note("tab ")});
    F.Add({.Kind = Kind::Tab, .Name = "Tab_1", .Words = {"Page 1", "Page 1"}});
    F.Add({.Kind = Kind::Tab, .Name = "Tab_2", .Words = {"Page 2", "Page 2"}});
    F.Add({.Kind = Kind::Image, .Name = "Image", .On_Click = Note("image ")});
    F.Add({.Kind = Kind::Image, .Name = "Preview", .Width = 64, .Height = 48, .Stretched = true});
    F.Add({.Kind = Kind::Lamp, .Name = "Lamp", .Colour = 0xFF0000});
    F.Add({.Kind = Kind::Scroll_Bar,
           .Name = "Scroll",
           .Max = 100,
           .Small_Step = 1,
           .Large_Step = 10,
           .On_Change = Note("scroll ")});
    F.Add({.Kind = Kind::Menu, .Name = "Mnu", .Words = {"Menu", "Menu"}});
    F.Add({.Kind = Kind::Menu_Item,
           .Name = "Mnu_Item",
           .Words = {"Item", "Choix"},
           .Shortcut = "Ctrl+I",
           .On_Click = Note("item ")});
    F.Add({.Kind = Kind::Button,
           .Name = "Cmd_Plain",
           .Words = {"Plain", "Simple"},
           .On_Click = Note("plain ")});
    F.Add({.Kind = Kind::Button,
           .Name = "Cmd_Ok",
           .Words = {"Ok", "Ok"},
           .Role = Button_Role::Ok,
           .On_Click = [&S] { S.F.Close(Form_End::Ok); }});
    F.Add({.Kind = Kind::Button,
           .Name = "Cmd_Cancel",
           .Words = {"Cancel", "Annuler"},
           .Role = Button_Role::Cancel,
           .On_Click = [&S] { S.F.Close(Form_End::Closed); }});
    F.Add({.Kind = Kind::Button,
           .Name = "Cmd_Help",
           .Words = {"Help", "Aide"},
           .Role = Button_Role::Help});
}

}  // namespace

Sample::Sample() {
    Add_Entries(*this);
    Add_Rest(*this);
    F.Set_Layout(Column(
        {Menu_Bar({Menu("Mnu", {"Mnu_Item"})}), Fields({"Number", "Field", "Path"}),
         Grid(2, {"Lab", "Chk", "Lamp", "Preview"}), "Opt", "Opt_Colour",
         Fields({Row({Option("Opt_Part", 0), "Cbo"}), Option("Opt_Part", 1)}),
         Tabs("Tabs", {Tab("Tab_1", {"List"}), Tab("Tab_2", {Frame("Fram", {"Image", "Scroll"})})}),
         Buttons({"Cmd_Plain", "Cmd_Ok", "Cmd_Cancel", "Cmd_Help"})}));
}
