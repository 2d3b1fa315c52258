// tests/ui/test_form_events.cpp - the rules that all fields and buttons share.
#include "ui/form/form_events.h"

#include "ui/form/field_rules.h"
#include "ui_support/ui_test.h"

namespace {

// A dialog with a number from 1 to 9, a second field, a frame with a check box, and its buttons.
class Sample final : public Form {
public:
    Sample() : Form("Sample", {"Sample", "Exemple"}) {
        Add({.Kind = Control_Kind::Number,
             .Name = "Number",
             .Words = {"Number", "Nombre"},
             .Rule = {.Accept = [this](const std::string& Text) { return Take(Text); },
                      .Held = [this] { return std::to_string(Held); }},
             .Text = "5",
             .On_Entry = [this] { Log += "entry "; },
             .On_Leave = [this] { Log += "leave "; }});
        Add({.Kind = Control_Kind::Text, .Name = "Other"});
        Add({.Kind = Control_Kind::Frame, .Name = "Frame"});
        Add({.Kind = Control_Kind::Check, .Name = "Check", .On_Change = [this] {
                 Log += "check ";
             }});
        Add({.Kind = Control_Kind::List,
             .Name = "List",
             .Value = -1,
             .Items = {"a", "b", "c"},
             .On_Change = [this] { Log += "choice "; },
             .On_Double_Click = [this] { Log += "double "; }});
        Add({.Kind = Control_Kind::Button,
             .Name = "Cmd_Ok",
             .Role = Button_Role::Ok,
             .On_Click = [this] { Close(Form_End::Ok); }});
        Add({.Kind = Control_Kind::Button,
             .Name = "Cmd_Cancel",
             .Role = Button_Role::Cancel,
             .On_Click = [this] { Close(Form_End::Closed); }});
        Add({.Kind = Control_Kind::Button, .Name = "Not_In_Layout"});
        Set_Layout(Column({Fields({"Number", "Other"}), Frame("Frame", {"Check"}), "List",
                           Buttons({"Cmd_Ok", "Cmd_Cancel"})}));
    }
    bool Take(const std::string& Text) {
        Log += "take:" + Text + " ";
        if (Text.size() != 1 || Text[0] < '1' || Text[0] > '9') return false;
        Held = Text[0] - '0';
        return true;
    }

    int Held = 5;
    std::string Log;
};

// Follows a form as a window would.
struct Watcher final : Form_View {
    std::string Seen;
    void Control_Changed(const Control& C) override { Seen += C.Name + " "; }
    void Title_Changed(const Form&) override { Seen += "title "; }
    void Focus_Changed(const Control& C, bool All) override {
        Seen += "focus:" + C.Name + (All ? "! " : " ");
    }
    void Form_Closed(const Form&) override { Seen += "closed "; }
};

class Form_Events : public Ui_Test {
protected:
    Form_Events() { F.View = &Window; }
    Watcher Window;
    Sample F;
    Form_Driver D{F};
};

}  // namespace

TEST_F(Form_Events, WhatIsOutOfReachTakesNothing) {
    F.Set_Enabled("Frame", false);
    EXPECT_FALSE(Form_Click(F, "Check")) << "its frame is disabled";
    F.Set_Enabled("Frame", true);
    F.Set_Visible("Frame", false);
    EXPECT_FALSE(Form_Click(F, "Check")) << "its frame is hidden";
    EXPECT_FALSE(Form_Click(F, "Not_In_Layout"));
    EXPECT_FALSE(Form_Click(F, "Nowhere"));
    EXPECT_FALSE(Form_Choose(F, "List", 3)) << "there is no such item";
    EXPECT_EQ(F.Log, "");
    F.Close(Form_End::Ok);
    EXPECT_FALSE(Form_Click(F, "Cmd_Cancel"));
    EXPECT_EQ(F.End(), Form_End::Ok);
}

TEST_F(Form_Events, TheKeyboardGoesPastABadEntryToCancel) {
    D.Type("Number", "12");
    EXPECT_TRUE(D.Focus("Cmd_Cancel"));
    EXPECT_EQ(D.Last_Message(), -1);
    EXPECT_FALSE(D.Focus("Cmd_Ok")) << "but no farther";
    EXPECT_EQ(D.Last_Message(), 1);
    EXPECT_EQ(D.Has_Focus(), "Number");
    D.Focus("Cmd_Cancel");
    EXPECT_TRUE(D.Enter()) << "Enter presses the button that has the focus";
    EXPECT_EQ(F.End(), Form_End::Closed);
    EXPECT_EQ(F.Held, 5);
}

TEST_F(Form_Events, ALeavingReportedTwiceBringsOneMessage) {
    struct Impatient final : Silent_Host {
        Form* F = nullptr;
        int Nb = 0;
        Int Show_Box(const Box&) override {
            ++Nb;  // while the box is up the window tells of the focus again
            Form_Leave(*F);
            Form_Enter_Control(*F, "Other");
            return Button_Ok;
        }
    } Host;
    Host.F = &F;
    const Host_Scope Scope(Host);
    D.Type("Number", "12");
    EXPECT_FALSE(D.Focus("Check"));
    EXPECT_EQ(Host.Nb, 1);
    EXPECT_EQ(D.Has_Focus(), "Number");
    EXPECT_FALSE(D.Leave()) << "it is still to be mended";
}

TEST_F(Form_Events, AHandlerMayChangeWhatFollows) {
    F.Handlers("Number").On_Leave = [this] { F.Set_Enabled("Frame", false); };
    D.Focus("Number");
    EXPECT_FALSE(Form_Click(F, "Check")) << "out of reach since the field was left";
    EXPECT_EQ(F.Log, "entry ");
    F.Handlers("Number").On_Leave = {};
    F.Handlers("List").On_Change = [this] { F.Close(Form_End::Ok); };
    F.Handlers("List").On_Click = [this] { F.Log += "click"; };
    EXPECT_TRUE(Form_Choose(F, "List", 1));
    EXPECT_EQ(F.Log, "entry ") << "nothing runs once the form is closed";
}

TEST_F(Form_Events, ScrollBarsHoldTheirRange) {
    Form Bars("Bars");
    std::vector<Long> Told;
    Bars.Add({.Kind = Control_Kind::Scroll_Bar, .Name = "Bar", .Max = 100, .On_Change = [&] {
                  Told.push_back(Bars["Bar"].Value);
              }});
    Bars.Set_Layout(Column({"Bar"}));
    for (const Long Value : {40, 101, -1}) Form_Scroll(Bars, "Bar", Value);
    Bars.Set_Value("Bar", 7);
    EXPECT_EQ(Told, (std::vector<Long>{40, 100, 0})) << "what code sets tells nobody";
}

TEST_F(Form_Events, ListsAndKeys) {
    D.Choose("List", "b");
    D.Choose("List", "b");
    D.Enter();
    EXPECT_EQ(F.Log, "choice double ") << "Enter on a list is its double click";
    std::string Keys;
    F.On_Key = [&](Key_Event K) {
        Keys += "form ";
        return K.Code == 'F';
    };
    F.Handlers("List").On_Key = [&](Key_Event) {
        Keys += "list ";
        return true;
    };
    EXPECT_TRUE(D.Key({'F', 0}));
    EXPECT_TRUE(D.Key({Key_Escape, 0}));
    EXPECT_EQ(Keys, "form form list ");
    EXPECT_FALSE(D.Is_Closed());
}

TEST_F(Form_Events, AWindowIsToldOfChangesOnly) {
    F.Set_Text("Other", "a");
    F.Set_Text("Other", "a");
    F.Set_Enabled("Cmd_Ok", true);
    F.Set_Title("Exemple");
    EXPECT_EQ(Window.Seen, "Other ");
    Window.Seen.clear();
    F.Set_Language("US");
    EXPECT_EQ(F.Title(), "Sample");
    EXPECT_EQ(F["Number"].Caption, "Number");
    EXPECT_NE(Window.Seen.find("title"), std::string::npos);
    F.Close(Form_End::Ok);
    F.Close(Form_End::Closed);
    EXPECT_EQ(F.End(), Form_End::Ok) << "a form ends once";
}

TEST_F(Form_Events, AFieldIsFilledByAClickOrItsChooser) {
    Form Chooser("Chooser");
    std::string Log;
    Chooser.Add({.Kind = Control_Kind::Text, .Name = "File", .Read_Only = true, .On_Click = [&] {
                     Log += "click ";
                 }});
    Chooser.Add({.Kind = Control_Kind::Text, .Name = "Tex", .No_Quotes = true, .On_Choose = [&] {
                     Log += "choose ";
                 }});
    Chooser.Set_Layout(Column({"File", "Tex"}));
    Form_Driver Of_Chooser(Chooser);
    EXPECT_FALSE(Of_Chooser.Type("File", "typed"));
    EXPECT_TRUE(Of_Chooser.Click("File"));
    EXPECT_TRUE(Of_Chooser.Enter()) << "by keyboard";
    EXPECT_FALSE(Of_Chooser.Key({Key_F4, 0})) << "it has no chooser";
    Of_Chooser.Double_Click("Tex");
    EXPECT_TRUE(Of_Chooser.Key({Key_F4, 0}));
    EXPECT_EQ(Log, "click click choose choose ");
    Of_Chooser.Type("Tex", "the \"best\"");
    EXPECT_EQ(Of_Chooser.Text("Tex"), "the 'best'");
}

TEST_F(Form_Events, EscapeClosesWhatIsModalAndHasNoCancel) {
    for (const bool Modal : {true, false}) {
        Form Bare("Bare");
        int Unloaded = 0;
        Bare.Modal = Modal;
        Bare.On_Unload = [&] { ++Unloaded; };
        EXPECT_EQ(Form_Key(Bare, {Key_Escape, 0}), Modal);
        EXPECT_EQ(Bare.Is_Closed(), Modal);
        EXPECT_TRUE(Form_User_Close(Bare));
        EXPECT_EQ(Unloaded, 1);
    }
    bool May_Close = false;
    F.On_Close = [&] { return May_Close; };
    EXPECT_FALSE(D.Close());
    May_Close = true;
    EXPECT_TRUE(D.Close());
}

TEST_F(Form_Events, APageIsBroughtToTheFrontUnlessAFieldHoldsOn) {
    Form Paged("Paged");
    Long Width = 5;
    Paged.Add({.Kind = Control_Kind::Tabs, .Name = "SSTb"});
    for (const char* Name : {"Tab_0", "Tab_1", "Tab_2"})
        Paged.Add({.Kind = Control_Kind::Tab, .Name = Name});
    Paged.Add({.Kind = Control_Kind::Number, .Name = "Width", .Rule = Number_Rule(Width)});
    Paged.Add({.Kind = Control_Kind::Frame, .Name = "Fram"});
    for (const char* Name : {"Chk_1", "Chk_2"})
        Paged.Add({.Kind = Control_Kind::Check, .Name = Name});
    Paged.Set_Layout(Tabs("SSTb", {Tab("Tab_0", {"Width"}), Tab("Tab_1", {"Chk_1"}),
                                   Tab("Tab_2", {Frame("Fram", {"Chk_2"})})}));
    Paged.Set_Enabled("Tab_1", false);
    EXPECT_FALSE(Form_Click(Paged, "Chk_2")) << "it is on a page behind";
    Form_Type(Paged, "Width", "x");
    EXPECT_FALSE(Form_Bring_To_Front(Paged, "Chk_2"));
    EXPECT_EQ(Paged["SSTb"].Value, 0);
    Form_Type(Paged, "Width", "6");
    EXPECT_TRUE(Form_Bring_To_Front(Paged, "Chk_2"));
    EXPECT_EQ(Width, 6);
    EXPECT_EQ(Paged.Focus(), "") << "the field has gone to the back";
    EXPECT_TRUE(Form_Click(Paged, "Chk_2"));
    EXPECT_FALSE(Form_Bring_To_Front(Paged, "Chk_1")) << "its page is disabled";
    EXPECT_FALSE(Form_Choose(Paged, "SSTb", 3));
    EXPECT_EQ(Paged["SSTb"].Value, 2);
}

TEST_F(Form_Events, FormsThatAreNotModalAreOpenUntilTheyClose) {
    static int Ticks;
    Ticks = 0;
    Form_Register("Frm_Free", [] {
        auto Made = std::make_unique<Form>("Frm_Free", Wording{"Free", "Libre"});
        Made->On_Tick = [F = Made.get()] {
            if (++Ticks == 2) F->Close(Form_End::Closed);
        };
        return Made;
    });
    for (int Round = 0; Round < 2; ++Round) {
        EXPECT_TRUE(Form_Open("Frm_Free", Host_Of_Test));
        EXPECT_TRUE(Form_Open("Frm_Free", Host_Of_Test)) << "it is there already";
        ASSERT_EQ(Forms_Open().size(), 1U);
        const std::shared_ptr<Form> Free = Forms_Open().front();
        EXPECT_FALSE(Free->Modal);
        Form_Tick(*Free);
        Form_Tick(*Free);
        if (Round == 1) Forms_Close();
        EXPECT_TRUE(Free->Is_Closed());
        EXPECT_TRUE(Forms_Open().empty());
    }
    EXPECT_FALSE(Form_Open("Frm_Nowhere", Host_Of_Test));
}
