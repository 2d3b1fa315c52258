// ui/dialogs/frm_cad_bmp.cpp - a calibration by two points pressed on the map.
#include <algorithm>
#include <cmath>
#include <optional>

#include "core/host.h"
#include "core/messages.h"
#include "core/program.h"
#include "core/typed_number.h"
#include "geo/calibration.h"
#include "grid/map_limits.h"
#include "ui/canvas/map_tiles.h"
#include "ui/canvas/own_canvas.h"
#include "ui/dialogs/degree_fields.h"
#include "ui/dialogs/dialogs.h"
#include "ui/dialogs/project_draft.h"

namespace {

constexpr Double Zoom_Step = 1.15;
constexpr Double Side_Step = 60.0;  // of the wheel, canvas pixels
constexpr Double Least_Zoom = 0.05, Most_Zoom = 23.0;
constexpr Long Cross_Arm = 10;  // canvas pixels
constexpr Long First_Width = 800, First_Height = 480;

// The map of the draft in the place of the project's while this object lives: its tiles are in
// memory, and what paints the map finds its size.
class Draft_Map {
public:
    Draft_Map() : Width_(Map_Width), Height_(Map_Height) {
        const Project_Draft& D = The_Draft;
        Map_Width = D.New_Map_Width, Map_Height = D.New_Map_Height;
        Nb_Tiles = D.Nb_Tiles_New, Nb_Tile_Rows = D.Nb_Tile_Rows_New;
        Nb_Tile_Cols = D.Nb_Tile_Cols_New;
        Map_Load_Tiles();
    }
    ~Draft_Map() {
        WPic.assign(1, {});
        Map_Width = Width_, Map_Height = Height_;
        Nb_Tiles = Nb_Tile_Rows = Nb_Tile_Cols = 0;
    }
    Draft_Map(const Draft_Map&) = delete;
    Draft_Map& operator=(const Draft_Map&) = delete;

private:
    Long Width_, Height_;
};

std::string Pixel_Text(Long Col, Long Row) {
    return std::to_string(Col) + "x" + std::to_string(Row);
}

enum class Point { None, NW, SE };

class Cad_Form final : public Form {
public:
    Cad_Form()
        : Form("Frm_CadBmp",
               {"Fix NW/SE points in the map", "D\xE9terminer les points NW/SE dans la carte"}) {
        Draft_Tiling();
        Map_.emplace();
        Add_Map();
        Add_Points();
        Add_Degree_Fields(*this, Fields_);
        Add_Ok_Cancel(
            *this, [this] { Ok(); }, [this] { Close(Form_End::Closed); });
        Lay_Out();
        On_Load = [this] { Load(); };
        On_Unload = [this] {
            if (Cad_Cancelled != 0) The_Draft.New_Cal = Before_;
            Map_.reset();
        };
    }

private:
    void Add_Map() {
        Add({.Kind = Control_Kind::Canvas,
             .Name = "Pic",
             .Said_Words = {"Map", "Carte"},
             .Width = First_Width,
             .Height = First_Height,
             .On_Key = [this](Key_Event K) { return Move_Armed(K); },
             .On_Mouse = [this](const Mouse_Event& E) { Mouse(E); },
             .On_Resize = [this](Long W, Long H) { Resize(W, H); }});
        for (const char* Bar : {"HScroll", "VScroll"})
            Add({.Kind = Control_Kind::Scroll_Bar,
                 .Name = Bar,
                 .Said_Words = {"Map, across or up and down", "Carte, en largeur ou en hauteur"},
                 .Max = Scroll_Max,
                 .Small_Step = Scroll_Small,
                 .Large_Step = Scroll_Large,
                 .On_Change = [this] { Scroll(); }});
    }

    void Add_Points() {
        Add({.Kind = Control_Kind::Button,
             .Name = "Cmd_CadNW",
             .Words = {"NW point", "Point NW"},
             .On_Click = [this] { Arm(Point::NW); }});
        Add({.Kind = Control_Kind::Button,
             .Name = "Cmd_CadSE",
             .Words = {"SE point", "Point SE"},
             .On_Click = [this] { Arm(Point::SE); }});
        for (const char* Label : {"LNWxy", "LSExy", "LMousePos"})
            Add({.Name = Label, .Columns = 14});
        Add({.Name = "LPoint_NWSE", .Columns = 24});
    }

    void Lay_Out() {
        Set_Layout(
            Column({Canvas("Pic", {"VScroll", "HScroll"}),
                    Row({"LMousePos", "LPoint_NWSE", "Cmd_CadNW", "LNWxy", "Cmd_CadSE", "LSExy"}),
                    Row({Degree_Layout(Fields_, 0, 1), Degree_Layout(Fields_, 2, 3)}),
                    Buttons({"Cmd_Ok", "Cmd_Cancel"})}));
    }

    void Load() {
        Show_Degree_Fields(*this, Fields_);
        Show_Points();
        Resize(First_Width, First_Height);
    }

    void Show_Points() {
        const Calibration& C = The_Draft.New_Cal;
        Set_Caption("LNWxy", C.CadNW_Done != 0 ? Pixel_Text(C.XPtNW, C.YPtNW) : "");
        Set_Caption("LSExy", C.CadSE_Done != 0 ? Pixel_Text(C.XPtSE, C.YPtSE) : "");
    }

    // --- the points -----------------------------------------------------------------------
    void Arm(Point P) {
        Armed_ = P;
        Set_Value("Cmd_CadNW", P == Point::NW ? 1 : 0);
        Set_Value("Cmd_CadSE", P == Point::SE ? 1 : 0);
        const std::string Which = P == Point::NW ? "NW" : "SE";
        Set_Caption("LPoint_NWSE",
                    ::Language == "US" ? Which + " searching" : "Cadrage " + Which + " en cours");
        Set_Focus("Pic");
    }

    void Place_Armed(Long Col, Long Row) {
        Calibration& C = The_Draft.New_Cal;
        if (Armed_ == Point::NW) C.XPtNW = Col, C.YPtNW = Row, C.CadNW_Done = 1;
        if (Armed_ == Point::SE) C.XPtSE = Col, C.YPtSE = Row, C.CadSE_Done = 1;
        Show_Points();
        Paint();
    }

    bool Move_Armed(Key_Event K) {
        const Calibration& C = The_Draft.New_Cal;
        const bool Is_NW = Armed_ == Point::NW;
        if (Armed_ == Point::None || (Is_NW ? C.CadNW_Done : C.CadSE_Done) == 0) return false;
        Long Col = Is_NW ? C.XPtNW : C.XPtSE, Row = Is_NW ? C.YPtNW : C.YPtSE;
        if (K.Code == Key_Left)
            --Col;
        else if (K.Code == Key_Right)
            ++Col;
        else if (K.Code == Key_Up)
            --Row;
        else if (K.Code == Key_Down)
            ++Row;
        else
            return false;
        Place_Armed(std::clamp<Long>(Col, 0, Map_Width - 1),
                    std::clamp<Long>(Row, 0, Map_Height - 1));
        return true;
    }

    // --- the mouse ------------------------------------------------------------------------
    void Mouse(const Mouse_Event& E) {
        const Double X = Left_ + E.X / Zoom_, Y = Top_ + E.Y / Zoom_;
        const bool Inside = X >= 0.0 && Y >= 0.0 && X < Map_Width && Y < Map_Height;
        const Long Col = Inside ? static_cast<Long>(X) : 0, Row = Inside ? static_cast<Long>(Y) : 0;
        using Kind = Mouse_Event::Kind;
        if (E.What == Kind::Wheel) return Wheel(E);
        if (Drag(E)) return;
        if (E.What == Kind::Move) Set_Caption("LMousePos", Inside ? Pixel_Text(Col, Row) : "");
        const bool Pressed = E.What == Kind::Press || E.What == Kind::Double_Click;
        if (Pressed && E.Button == Mouse_Left && Inside && Armed_ != Point::None)
            Place_Armed(Col, Row);
    }

    void Wheel(const Mouse_Event& E) {
        if ((E.Shift & Shift_Key) != 0) return Show_From(Left_ - E.Steps * Side_Step / Zoom_, Top_);
        const Double X = Left_ + E.X / Zoom_, Y = Top_ + E.Y / Zoom_;
        Zoom_ = std::clamp(Zoom_ * std::pow(Zoom_Step, E.Steps), Least_Zoom, Most_Zoom);
        Show_From(X - E.X / Zoom_, Y - E.Y / Zoom_);
    }

    // The middle button takes the map along.
    bool Drag(const Mouse_Event& E) {
        using Kind = Mouse_Event::Kind;
        const bool Down = E.What == Kind::Press || E.What == Kind::Double_Click;
        if (Down && E.Button == Mouse_Middle) {
            Drag_From_ = Pic_Px{E.X, E.Y};
            return true;
        }
        if (!Drag_From_) return false;
        if (E.What == Kind::Move && (E.Button & Mouse_Middle) != 0) {
            const Pic_Px From = *Drag_From_;
            Drag_From_ = Pic_Px{E.X, E.Y};
            Show_From(Left_ - (E.X - From.X) / Zoom_, Top_ - (E.Y - From.Y) / Zoom_);
            return true;
        }
        Drag_From_.reset();
        return E.Button == Mouse_Middle;
    }

    // --- what the canvas shows ------------------------------------------------------------
    // Map pixels that stand beyond the canvas to the right and below, when its origin is at 0.
    Double Range_X() const { return std::max(0.0, Map_Width - Width_ / Zoom_); }
    Double Range_Y() const { return std::max(0.0, Map_Height - Height_ / Zoom_); }

    void Resize(Long W, Long H) {
        Width_ = std::max<Long>(1, W), Height_ = std::max<Long>(1, H);
        Show_From(Left_, Top_);
    }

    void Scroll() {
        Left_ = (*this)["HScroll"].Value * Range_X() / Scroll_Max;
        Top_ = (*this)["VScroll"].Value * Range_Y() / Scroll_Max;
        Paint();
    }

    void Show_From(Double Left, Double Top) {
        Left_ = std::clamp(Left, 0.0, Range_X());
        Top_ = std::clamp(Top, 0.0, Range_Y());
        Set_Bar("HScroll", Left_, Range_X());
        Set_Bar("VScroll", Top_, Range_Y());
        Paint();
    }

    void Set_Bar(const char* Bar, Double At, Double Range) {
        Set_Value(Bar, Range > 0.0 ? Round_Lng(At * Scroll_Max / Range) : 0);
        Set_Enabled(Bar, Range > 0.0);
    }

    void Paint() {
        const Canvas_Scope On(*this, "Pic", On_Canvas_);
        Pic_Width = Width_, Pic_Height = Height_;
        View_Half_W = Width_ / 2.0, View_Half_H = Height_ / 2.0;
        Zoom = Zoom_;
        Pan_X = Map_Width / 2.0 - View_Half_W / Zoom_ - Left_;
        Pan_Y = Map_Height / 2.0 - View_Half_H / Zoom_ - Top_;
        The_Surface().Clear();
        Map_Blit_View();
        const Calibration& C = The_Draft.New_Cal;
        if (C.CadNW_Done != 0) Paint_Cross(C.XPtNW, C.YPtNW);
        if (C.CadSE_Done != 0) Paint_Cross(C.XPtSE, C.YPtSE);
        The_Surface().Refresh();
    }

    // Through the middle of the pixel.
    static void Paint_Cross(Long Col, Long Row) {
        const Pic_Px P = Map_To_Pic({Col + 0.5, Row + 0.5});
        const Long X = Round_Lng(P.X), Y = Round_Lng(P.Y);
        const Pen Red{.Colour = 0xFF0000};
        The_Surface().Line({X - Cross_Arm, Y, X + Cross_Arm, Y}, Red);
        The_Surface().Line({X, Y - Cross_Arm, X, Y + Cross_Arm}, Red);
    }

    // --- the end --------------------------------------------------------------------------
    void Ok() {
        Project_Draft& D = The_Draft;
        if (const Int Num = Points_Refused(D.New_Cal); Num != 0) {
            Msg_Show(Num);
            return;
        }
        Cad_Cancelled = 0;
        Compute_Map_Limits(D.New_Cal, D.New_Map_Width, D.New_Map_Height);
        Close(Form_End::Ok);
    }

    using Axis = Degree_Field::Axis;
    const Calibration Before_ = The_Draft.New_Cal;
    std::optional<Draft_Map> Map_;
    Own_Canvas On_Canvas_;
    Double Zoom_ = 1.0, Left_ = 0.0, Top_ = 0.0;  // of the canvas's top left, map pixels
    Long Width_ = First_Width, Height_ = First_Height;
    Point Armed_ = Point::None;
    std::optional<Pic_Px> Drag_From_;
    std::vector<Degree_Field> Fields_{{"NWLatDec",
                                       "LNWLat",
                                       {"NW latitude:", "Latitude NW :"},
                                       Axis::Lat,
                                       &The_Draft.New_Cal.LatPtNW},
                                      {"NWLonDec",
                                       "LNWLon",
                                       {"NW longitude:", "Longitude NW :"},
                                       Axis::Lon,
                                       &The_Draft.New_Cal.LonPtNW},
                                      {"SELatDec",
                                       "LSELat",
                                       {"SE latitude:", "Latitude SE :"},
                                       Axis::Lat,
                                       &The_Draft.New_Cal.LatPtSE},
                                      {"SELonDec",
                                       "LSELon",
                                       {"SE longitude:", "Longitude SE :"},
                                       Axis::Lon,
                                       &The_Draft.New_Cal.LonPtSE}};
};

}  // namespace

std::unique_ptr<Form> Make_Frm_CadBmp() {
    return std::make_unique<Cad_Form>();
}
