// tests/gen/test_records.cpp - small projects, and all that the generator makes of them.
//
// A file tests/data/generate/NAME.txt tells a project line by line and runs emitters on it; what
// happens, the sources that the tools are given among it, is in
// tests/data/golden/generate/NAME.txt. The map has two Areas each way.
//
//     line|coast|polygon|textured FIELD=VALUE ... : POINTS    an object; "square X Y SIDE",
//                                  "disc X Y RADIUS NUMBER" and "zigzag X Y NUMBER" are points, too
//     times N DX,DY FIELD ...      the next object so often, moved each time, fields one higher
//     area LON LAT COL ROW FIELD=VALUE ...    excl LON LAT COL ROW CLASS ...    lod8 LON LAT ATTRIB
//     lc|wc LON LAT COL ROW CLASS  sample X Y ALTITUDE    samples N X Y    texture X1 Y1 X2 Y2
//     pieces N POINTS LON LAT COL ROW    finished pieces of so many points
//     project PATH                 opens a project of the source tree
//     set NAME VALUE               a scalar of the project
//     file NAME TEXT               a file, ~ for a line's end; raw NAME CLASS a raster
//     spoil                        the calibration points change places
//     missing WORD                 tools whose command line holds it do not start; none again
//     show WORD ...                of sources only the lines that hold one; all again
//     run EMITTER                  clear: an empty project
#include <gtest/gtest.h>

#include <fstream>
#include <sstream>
#include <variant>

#include "core/lifecycle.h"
#include "gen/emit_classes.h"
#include "gen/emit_excl.h"
#include "gen/emit_lines.h"
#include "gen/emit_lwm_poly.h"
#include "gen/emit_night_lines.h"
#include "gen/emit_remesh.h"
#include "gen/emit_vtp2_poly.h"
#include "gen_test.h"
#include "platform/paths.h"
#include "support/golden.h"
#include "support/rows.h"

namespace {

template <typename R>
using Fields =
    std::map<std::string, std::variant<Int R::*, Byte R::*, Double R::*, std::string R::*>>;

const Fields<Attr> Of_Attr{
    {"SurfShore", &Attr::SurfShore},     {"LineType", &Attr::LineType},
    {"FermerLine", &Attr::FermerLine},   {"LandOnRight", &Attr::LandOnRight},
    {"Effil_Deb", &Attr::Effil_Deb},     {"Effil_Fin", &Attr::Effil_Fin},
    {"Largeur", &Attr::Largeur},         {"Layer", &Attr::Layer},
    {"Text_Rt", &Attr::Text_Rt},         {"Alti", &Attr::Alti},
    {"Attrib", &Attr::Attrib},           {"Alt_Coast", &Attr::Alt_Coast},
    {"Vtp1_Line", &Attr::Vtp1_Line},     {"Line_Night", &Attr::Line_Night},
    {"Drive_Right", &Attr::Drive_Right}, {"LayerScasm", &Attr::LayerScasm},
    {"LWM_VTP2", &Attr::LWM_VTP2},       {"LC", &Attr::LC},
    {"LandClass", &Attr::LandClass},     {"Layer_Vtp2", &Attr::Layer_Vtp2},
    {"Link_Ima", &Attr::Link_Ima},       {"VTP1_SpecNor", &Attr::VTP1_SpecNor},
};
const Fields<Area> Of_Area{
    {"Attrib", &Area::Attrib},
    {"Alti", &Area::Alti},
    {"Fill1x1", &Area::Fill1x1},
    {"InvertMask", &Area::InvertMask},
    {"InvertMaskValue", &Area::InvertMaskValue},
};

// Gives a field a value, or raises it by that much.
template <typename R>
void Set_Field(const Fields<R>& Known, R& Record, const std::string& Name, const std::string& Text,
               bool Raise = false) {
    const auto Set = [&](auto& Field) {
        if constexpr (std::is_same_v<decltype(Field), std::string&>)
            Field = Text;
        else
            Field = static_cast<std::remove_reference_t<decltype(Field)>>((Raise ? Field : 0) +
                                                                          Cell_Number(Text));
    };
    std::visit([&](auto Member) { Set(Record.*Member); }, Known.at(Name));
}

class Records : public Gen_Test, public testing::WithParamInterface<std::string> {
protected:
    Records() {
        Make_Map(64);
        Host_Of_Test.Tool = [this](std::string_view Cmd_Line) {
            Show_Written();
            return Missing_.empty() || Cmd_Line.find(Missing_) == std::string_view::npos;
        };
        for (const char* Name : {"Classes", "Raw"})
            std::filesystem::create_directory(Dir.Native(Name));
        Set_Outputs();
        std::filesystem::copy_file(TEST_SOURCE_DIR "/resource/OwnLines4.txt",
                                   Dir.Native("App/Resource/OwnLines4.txt"));
    }

    void Do(const std::string& Line);
    std::string Transcript() const;

private:
    void Do_Record(const std::string& Word);
    void Set(const std::string& Name, const std::string& Value);
    void Run(const std::string& Emitter);
    void Add_Object(Attr A);
    std::vector<Pix> Points();
    void Show_Written();
    std::string Shown(const std::string& Path, const std::string& Text) const;
    template <typename T>
    T Next() {
        double Number = 0;
        In_ >> Number;
        return static_cast<T>(Number);
    }
    Cell_Pos Next_Cell() {
        const Int Lon = Next<Int>(), Lat = Next<Int>(), Col = Next<Int>(), Row = Next<Int>();
        return {Lon, Lat, Col, Row};
    }
    std::vector<std::string> Rest() {
        std::vector<std::string> Words;
        for (std::string Word; In_ >> Word;) Words.push_back(Word);
        return Words;
    }

    std::istringstream In_;
    std::vector<std::string> Times_, Show_;
    std::string Missing_;
    std::size_t Seen_ = 0;  // events whose files have been shown
};

std::vector<Pix> Records::Points() {
    std::string Text;
    std::getline(In_, Text);
    const std::vector<double> V = Cell_Numbers(Text);
    const auto Is = [&](const char* Shape) { return Text.find(Shape) != std::string::npos; };
    if (Is("square"))
        return {{V[0], V[1]}, {V[0] + V[2], V[1]}, {V[0] + V[2], V[1] + V[2]}, {V[0], V[1] + V[2]}};
    std::vector<Pix> Found;
    if (Is("disc"))
        for (int I = 0; I < V[3]; ++I) {
            const Double Turn = 2 * std::numbers::pi * (I + 0.3) / V[3];
            Found.push_back({V[0] + V[2] * std::cos(Turn), V[1] + V[2] * std::sin(Turn)});
        }
    else if (Is("zigzag"))
        for (int I = 0; I < V[2]; ++I) Found.push_back({V[0] + I, V[1] + (I % 2) * 3.0});
    else
        for (std::size_t I = 0; I + 1 < V.size(); I += 2) Found.push_back({V[I], V[I + 1]});
    return Found;
}

void Records::Add_Object(Attr A) {
    for (std::string Word; In_ >> Word && Word != ":";) {
        const auto Is = Word.find('=');
        std::string Name = Word.substr(0, Is), Value = Word.substr(Is + 1);
        std::ranges::replace(Value, '_', ' ');
        if (Name.starts_with("Texture"))
            A.Texture_Name[static_cast<std::size_t>(Name.back() - '1')] = Value;
        else
            Set_Field(Of_Attr, A, Name, Value);
    }
    std::vector<Pix> Line = Points();
    const Pix Way =
        Times_.empty() ? Pix{} : Pix{Cell_Numbers(Times_[1])[0], Cell_Numbers(Times_[1])[1]};
    for (int Left = Times_.empty() ? 1 : std::stoi(Times_[0]); Left > 0; --Left) {
        Draw(Line, A);
        for (Pix& P : Line) P = {P.X + Way.X, P.Y + Way.Y};
        for (std::size_t I = 2; I < Times_.size(); ++I) Set_Field(Of_Attr, A, Times_[I], "1", true);
    }
    Times_.clear();
}

void Records::Set(const std::string& Name, const std::string& Value) {
    const std::map<std::string, Int*> Numbers{{"FS_CFS", &FS_CFS},
                                              {"Meter_Feet", &Meter_Feet},
                                              {"ReUse_Raw", &ReUse_Raw},
                                              {"Dir_Raw_On", &Dir_Raw_On}};
    if (Name == "Delta_Alt")
        Delta_Alt = static_cast<Single>(Cell_Number(Value));
    else if (Name == "Dir_LCWC")
        Dir_LCWC = Dir.Path(Value);
    else
        *Numbers.at(Name) = static_cast<Int>(Cell_Number(Value));
}

void Records::Run(const std::string& Emitter) {
    const std::map<std::string, void (*)()> Emitters{{"excl", Emit_Excl},
                                                     {"remesh", Emit_Remesh},
                                                     {"mask", Emit_LWM_Poly},
                                                     {"land", LC_Generate},
                                                     {"water", WC_Generate},
                                                     {"lines", ShoreLines_Generate},
                                                     {"textured", Emit_VTP2_Poly},
                                                     {"lights", Night_Lines_Generate},
                                                     {"all", Cmd_API}};
    Host_Of_Test.Events.push_back("-- " + Emitter);
    Seen_ = Host_Of_Test.Events.size();
    Host_Of_Test.Stages.clear();
    Emitters.at(Emitter)();
    Show_Written();
    for (const std::string& S : Host_Of_Test.Stages) Host_Of_Test.Events.push_back("stage " + S);
    if (Host_Of_Test.Pointer == Pointer_Shape::Cross)
        Host_Of_Test.Events.push_back("pointer cross");
    EXPECT_NE(Host_Of_Test.Pointer, Pointer_Shape::Hourglass);
    EXPECT_EQ(Nb_WPoly + Nb_WPt + Nb_CPoly + Nb_CPt + Nb_CCoast + Nb_CCoastPt, 0);
}

void Records::Do_Record(const std::string& Word) {
    if (Word == "lod8") {
        const Int Lon = Next<Int>(), Lat = Next<Int>();
        Tab_Lod8.Append({.AreaLon = Lon, .AreaLat = Lat, .Attrib = Next<Byte>()});
    } else if (Word == "sample") {
        const Double X = Next<Double>(), Y = Next<Double>();
        PtGrid_Add(X, Y, Next<Single>());
    } else if (Word == "samples") {  // side by side, in rows of 200
        const Long Nb = Next<Long>();
        const Double X = Next<Double>(), Y = Next<Double>();
        for (Long I = 0; I < Nb; ++I) PtGrid_Add(X + I % 200, Y + I / 200, 0.0F);
    } else if (Word == "pieces") {
        static const Attr A;
        const Int Nb = Next<Int>(), Points = Next<Int>();
        const Cell_Pos C = Next_Cell();
        for (Int I = 0; I < Nb; ++I) {
            Tab_CPoly.Append({.Nb = Points,
                              .First = Nb_CPt + 1,
                              .Last = Nb_CPt + Points,
                              .AreaLon = C.AreaLon,
                              .AreaLat = C.AreaLat,
                              .CellLon = C.CellLon,
                              .CellLat = C.CellLat,
                              .Attr = &A});
            for (Int P = 1; P <= Points; ++P) Tab_CPt.Append({.LocX = P, .LocY = 1});
        }
    } else if (Word == "texture") {
        Ima M;
        for (Double* Edge : {&M.X1, &M.Y1, &M.X2, &M.Y2}) *Edge = Next<Double>();
        Ima_Add(M);
    } else if (Word == "area") {
        Area A;
        static_cast<Cell_Pos&>(A) = Next_Cell();
        for (const std::string& W : Rest())
            Set_Field(Of_Area, A, W.substr(0, W.find('=')), W.substr(W.find('=') + 1));
        Tab_Area.Append(A);
    } else if (Word == "excl") {
        Excl E{Next_Cell()};
        for (const std::string& W : Rest()) {
            const auto To = W.find('-');
            for (int C = std::stoi(W);
                 C <= std::stoi(To == std::string::npos ? W : W.substr(To + 1)); ++C)
                E.Chk_Excl[static_cast<std::size_t>(C)] = 1;
        }
        Tab_Excl.Append(E);
    } else if (Word == "lc") {
        LC_Cell C{Next_Cell()};
        C.Num = Next<Byte>();
        Tab_LC.Append(C);
    } else {
        ASSERT_EQ(Word, "wc");
        WC_Cell C{Next_Cell()};
        C.Num = Next<Byte>();
        Tab_WC.Append(C);
    }
}

void Records::Do(const std::string& Line) {
    In_ = std::istringstream(Line);
    std::string Word, Name;
    if (!(In_ >> Word) || Word[0] == '#') return;
    Attr A;
    A.FermerLine = 0;
    if (Word == "times") {
        Times_ = Rest();
    } else if (Word == "show") {
        Show_ = Rest();
    } else if (Word == "missing") {
        Missing_.clear();
        In_ >> Missing_;
    } else if (Word == "project") {
        In_ >> Name;
        ASSERT_TRUE(Load_Project(Program_Path(TEST_SOURCE_DIR "/" + Name).value()));
        Set_Outputs();
    } else if (Word == "spoil") {
        std::swap(XPtNW, XPtSE);
    } else if (Word == "clear") {
        Init_Tables();
    } else if (Word == "run") {
        In_ >> Name;
        Run(Name);
    } else if (Word == "set") {
        std::string Value;
        In_ >> Name >> Value;
        Set(Name, Value);
    } else if (Word == "raw") {
        In_ >> Name;
        Dir.Write(Name, std::string(static_cast<std::size_t>(Next<Long>()), '\3'));
    } else if (Word == "file") {
        std::string Text;
        std::getline(In_ >> Name >> std::ws, Text);
        for (std::size_t At; (At = Text.find('~')) != std::string::npos;)
            Text.replace(At, 1, "\r\n");
        std::error_code Ignored;  // a file makes room for a directory of its name
        std::filesystem::remove(Dir.Native(Name).parent_path(), Ignored);
        Dir.Write(Name, Text);
    } else if (Word == "line" || Word == "coast") {
        A.SurfShore = Word == "line" ? Surf_Line : Surf_Coast;
        Add_Object(A);
    } else if (Word == "polygon" || Word == "textured") {
        A = {};
        A.LWM_VTP2 = Word == "polygon" ? Technique_LWM : Technique_VTP2;
        Add_Object(A);
    } else {
        Do_Record(Word);
    }
}

// A raster is told by the classes that differ from its first byte.
std::string Records::Shown(const std::string& Path, const std::string& Text) const {
    std::string Out;
    if (Path.ends_with("aw")) {
        Out = "  " + std::to_string(Text.size()) + " bytes, no class " +
              std::to_string(static_cast<Byte>(Text.back())) + "\n";
        for (std::size_t I = 0; I < Text.size(); ++I)
            if (Text[I] != Text.back())
                Out += "  " + std::to_string(I % 257) + "," + std::to_string(I / 257) + " " +
                       std::to_string(static_cast<Byte>(Text[I])) + "\n";
        return Out;
    }
    std::istringstream Lines_Of_Text(Text);
    for (std::string Line; std::getline(Lines_Of_Text, Line);) {
        bool Is_Shown = Show_.empty();
        for (const std::string& Word : Show_) Is_Shown |= Line.find(Word) != std::string::npos;
        if (Is_Shown) Out += "  " + Line + "\n";
    }
    return Out;
}

void Records::Show_Written() {
    std::vector<std::string>& Events = Host_Of_Test.Events;
    for (const std::size_t End = Events.size(); Seen_ < End; ++Seen_) {
        if (!Events[Seen_].starts_with("write ")) continue;
        std::string Name = Events[Seen_].substr(6 + Dir.Path().size() + 1);
        std::ranges::replace(Name, '\\', '/');
        if (Dir.Has(Name)) Events.push_back(Shown(Name, Dir.Read(Name)));
    }
    Seen_ = Events.size();
}

std::string Records::Transcript() const {
    std::string Text;
    for (const std::string& E : Host_Of_Test.Events) Text += E + "\n";
    return Without_Dir(Text);
}

TEST_P(Records, GiveWhatWasAccepted) {
    std::ifstream File(TEST_DATA_DIR "/generate/" + GetParam() + ".txt");
    ASSERT_TRUE(File);
    for (std::string Line; std::getline(File, Line);) Do(Line);
    EXPECT_TRUE(Equals_Golden("generate/" + GetParam() + ".txt", Transcript()));
}

std::vector<std::string> Names() {
    std::vector<std::string> Found;
    for (const auto& File : std::filesystem::directory_iterator(TEST_DATA_DIR "/generate"))
        Found.push_back(File.path().stem().string());
    return Found;
}

INSTANTIATE_TEST_SUITE_P(Generate, Records, testing::ValuesIn(Names()),
                         [](const auto& Info) { return Info.param; });

}  // namespace
