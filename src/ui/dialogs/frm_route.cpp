// ui/dialogs/frm_route.cpp - what an object is: polygon, shore, line or coastline, and all that its
// output needs.
//
// The dialog works on Cur_Attr, which its controls write at once; Ok hands it over in Prev_Attr.
#include <algorithm>
#include <utility>

#include "core/attr_kinds.h"
#include "core/dialog_flags.h"
#include "core/messages.h"
#include "core/model.h"
#include "core/program.h"
#include "core/reference_file.h"
#include "gen/class_lists.h"
#include "gen/own_line_list.h"
#include "gen/own_lines.h"
#include "platform/files.h"
#include "ui/canvas/edit_state.h"
#include "ui/dialogs/dialogs.h"
#include "ui/dialogs/frm_ref.h"
#include "ui/dialogs/frm_route_parts.h"
#include "ui/dialogs/texture_pick.h"
#include "ui/dialogs/texture_preview.h"
#include "ui/form/field_rules.h"

namespace {

constexpr const char* Class_Lists[] = {"Cbo_LC", "Cbo_LC_1"};
constexpr Byte Last_Class = 253;

bool Texture_Is_There(Int Num) {
    return std::ranges::any_of(Tab_Ima.Rows(),
                               [Num](const Ima& M) { return M.Active != 0 && M.Num == Num; });
}

class Route_Form final : public Form {
public:
    Route_Form() : Form("Frm_Route", {"Polygons/Lines", "Polygons/Lignes"}) {
        Route_Add_Controls(*this);
        Add_Reference_Controls();
        Add_Ok_Cancel(
            *this, [this] { Ok(); }, [this] { Close(Form_End::Closed); });
        Add_Help(*this);
        Set_Handlers();
        Route_Set_Layout(*this);
        On_Load = [this] { Load(); };
    }

private:
    void Add_Reference_Controls() {
        Add({.Kind = Control_Kind::Text,
             .Name = "Text_Ref",
             .Words = {"Reference:",
                       "R\xE9"
                       "f\xE9rence :"},
             .Rule = Text_Rule(Text_Ref_),
             .Columns = 24,
             .No_Quotes = true});
        Add({.Kind = Control_Kind::Button,
             .Name = "Cmd_Read",
             .Words = {"Read ref.", "Lire ref."},
             .On_Click = [this] { Read_Reference(); }});
        Add({.Kind = Control_Kind::Button,
             .Name = "Cmd_Save",
             .Words = {"Save ref as ...", "Enreg. ref. sous"},
             .On_Click = [this] { Save_Reference(Text_Ref_); }});
    }

    void Set_Handlers() {
        for (const Attr_Switch& S : Route_Switches)
            Handlers(S.Name).On_Click = [this, S] {
                Cur_Attr.*S.Field = static_cast<Int>((*this)[S.Name].Value);
                Switched(S.Field);
            };
        for (const char* Name : Class_Lists)
            Handlers(Name).On_Click = [this, Name] { Choose_Class((*this)[Name].Value); };
        Handlers("Cmbo").On_Click = [this] { Choose_Line((*this)["Cmbo"].Value); };
        for (const auto& Group : Route_Textures)
            for (std::size_t I = 0; I < Group.size(); ++I) Set_Texture_Handlers(Group[I], I);
    }

    // Both groups show what is accepted in one.
    void Set_Texture_Handlers(const char* Name, std::size_t I) {
        Control& C = Handlers(Name);
        C.Rule.Accept = [this, I, Takes = C.Rule.Accept](const std::string& Text) {
            if (!Takes(Text)) return false;
            Show_Texture_Name(I);
            return true;
        };
        C.On_Choose = [this, Name, I] { Choose_Texture((*this)[Name].Text, I); };
    }

    void Load() {
        Ref_Name.clear();
        Lines_ = Own_Line_List_Read();
        Classes_ = LC_List_Read();
        std::erase_if(Classes_, [](const LC_Entry& C) { return C.Class > Last_Class; });
        Tex_Dir_On_ = !Dir_Texture.empty() && Dir_Exists(Dir_Texture);
        Fill_Lists();
        Cur_Attr = Pending_New != 0 ? Attr{} : Prev_Attr;
        if (Pending_New != 0 && !DerRefLu.empty()) Ref_Read(DerRefLu);
        Show_Reference();
        Frm_Route_PrepaDisplay();
        Set_Focus("Text_Rt");
    }

    void Fill_Lists() {
        std::vector<std::string> Kinds, Classes;
        for (const Own_Line_Entry& K : Lines_) Kinds.push_back(Own_Line_Text(K));
        for (const LC_Entry& C : Classes_) Classes.push_back(C.Text);
        Set_Items("Cmbo", std::move(Kinds), -1);
        for (const char* Name : Class_Lists) {
            Set_Items(Name, Classes, -1);
            Set_Enabled(Name, !Classes.empty());
        }
    }

    void Frm_Route_PrepaDisplay() {
        for (const Control& C : Controls())
            if (C.Rule.Held) Set_Text(C.Name, C.Rule.Held());
        for (const Attr_Switch& S : Route_Switches) Set_Value(S.Name, Cur_Attr.*S.Field);
        Show_Line();
        if (Cur_Attr.LandClass == 0)
            Show_Class();
        else
            Class_Preview_.Show_Or_Empty(Cur_Attr.Texture_Name[0]);
        Route_Line_Preview(Cur_Attr.LineType);
        Frm_Route_Pages();
    }

    // A kind that has left the file stays the object's.
    void Show_Line() {
        const auto Kind = std::ranges::find(Lines_, Cur_Attr.LineType, &Own_Line_Entry::Code);
        Set_Enabled("Cmbo", Kind != Lines_.end());
        if (Kind != Lines_.end()) Set_Value("Cmbo", static_cast<Long>(Kind - Lines_.begin()));
    }

    void Show_Class() {
        if (Classes_.empty()) return Class_Preview_.Empty();
        const auto Row = static_cast<Long>(Class_Place(Classes_, Cur_Attr.LC).value_or(0));
        for (const char* Name : Class_Lists) Set_Value(Name, Row);
        Preview_Class(Row);
    }

    void Preview_Class(Long Row) {
        const LC_Entry& C = Classes_[static_cast<std::size_t>(Row)];
        if (!Tex_Dir_On_ || C.Class > Last_With_Texture) return Class_Preview_.Empty();
        Class_Preview_.Show_Or_Empty(Class_Texture_Path(Class_Sort::Land, C.Texture));
    }

    // The fourth texture of a kind where it has so many, else the first.
    void Route_Line_Preview(Int Code) {
        constexpr std::size_t Buffer = 255, Shown = 3;
        const std::string Names = Own_Lines_.Line_Textures(Code).substr(0, Buffer);
        std::string First, Name;
        std::size_t At = 0;
        for (std::size_t I = 0; I <= Shown && At <= Names.size(); ++I) {
            const std::size_t End = std::min(Names.find('|', At), Names.size());
            Name = Names.substr(At, End - At);
            if (I == 0) First = Name;
            if (I < Shown) Name.clear();
            At = End + 1;
        }
        const std::string& File = Name.empty() ? First : Name;
        if (!Tex_Dir_On_ || File.empty()) return Line_Preview_.Empty();
        Line_Preview_.Show_Or_Empty(Dir_Texture + "\\" + File);
    }

    void Frm_Route_Pages() {
        Attr& A = Cur_Attr;
        const bool Line = Is_Open_Line(A), Coast = Is_Coast(A);
        const bool LWM = A.LWM_VTP2 == Technique_LWM, VTP2 = A.LWM_VTP2 == Technique_VTP2,
                   VTP1 = A.LWM_VTP2 == Technique_VTP1;
        const auto Enable_Page = [this](Route_Page Page, bool On) {
            Set_Enabled(Route_Pages[static_cast<std::size_t>(Page)], On);
        };
        Enable_Page(Page_Lines, Has_Line(A));
        Enable_Page(Page_LWM, !Line && !VTP2 && !VTP1);
        Enable_Page(Page_VTP1, !Line && !LWM && !VTP2);
        Enable_Page(Page_VTP2, !Line && !LWM && !VTP1);
        Set_Enabled("Fram_Type_Poly", !Line);
        Set_Enabled("Fram_Layer_VTP12", Line || !LWM);
        if (Coast) A.FermerLine = 0;
        Set_Value("Chk_FermerLine", A.FermerLine);
        Set_Enabled("Chk_FermerLine", !Coast);
    }

    void Switched(Int Attr::*Field) {
        if (Field == &Attr::SurfShore) {
            if (Is_Open_Line(Cur_Attr)) Cur_Attr.Link_Ima = 0;
            Frm_Route_Pages();
        } else if (Field == &Attr::LWM_VTP2) {
            Frm_Route_Pages();
        } else if (Field == &Attr::LandClass) {
            Frm_Route_PrepaDisplay();
        }
    }

    void Choose_Class(Long Row) {
        for (const char* Name : Class_Lists) Set_Value(Name, Row);
        Preview_Class(Row);
        Cur_Attr.LC = Classes_[static_cast<std::size_t>(Row)].Class;
    }

    void Choose_Line(Long Row) {
        Cur_Attr.LineType = Lines_[static_cast<std::size_t>(Row)].Code;
        Route_Line_Preview(Cur_Attr.LineType);
    }

    void Show_Texture_Name(std::size_t I) {
        for (const auto& Group : Route_Textures) Set_Text(Group[I], Cur_Attr.Texture_Name[I]);
    }

    // The picker begins where the field's text is, be it accepted or not.
    void Choose_Texture(std::string Name, std::size_t I) {
        if (!Pick_Texture(Name)) return;
        Cur_Attr.Texture_Name[I] = Prev_Attr.Texture_Name[I] = Name;
        Show_Texture_Name(I);
        if (Name.empty())
            Class_Preview_.Empty();
        else
            Class_Preview_.Show(Name);
    }

    void Show_Reference() {
        Text_Ref_ = Ref_Name;
        Set_Text("Text_Ref", Text_Ref_);
    }

    void Read_Reference() {
        if (!Choose_Reference()) return;
        Show_Reference();
        Frm_Route_PrepaDisplay();
    }

    void Ok() {
        const Attr& A = Cur_Attr;
        const bool Has_Textures = A.LWM_VTP2 == Technique_VTP2 ||
                                  (A.LWM_VTP2 == Technique_VTP1 && A.VTP1_SpecNor == Vtp1_Normal);
        if (Has_Textures && A.LandClass == 1 && A.Texture_Name[0].empty()) {
            Msg_Show(103);
            return;
        }
        Prev_Attr = Cur_Attr;
        if (!Texture_Is_There(Prev_Attr.Link_Ima)) Prev_Attr.Link_Ima = 0;
        Route_Cancelled = 0;
        Close(Form_End::Ok);
    }

    std::vector<LC_Entry> Classes_;      // rows of both lists of classes
    std::vector<Own_Line_Entry> Lines_;  // rows of Cmbo
    const Own_Lines Own_Lines_;
    bool Tex_Dir_On_ = false;
    std::string Text_Ref_;
    Texture_Preview Class_Preview_{*this, {"Pic", "Pic_1"}, "$BmpLC$.bmp"};
    Texture_Preview Line_Preview_{*this, {"PicLine"}, "$BmpEffet$.bmp"};
};

}  // namespace

std::unique_ptr<Form> Make_Frm_Route() {
    return std::make_unique<Route_Form>();
}
