// tests/core/project_maker.cpp - random projects, and copies to compare.
#include "core/project_maker.h"

#include <gtest/gtest.h>

#include <cmath>

#include "core/model_ops.h"
#include "core/number_text.h"
#include "core/project_fields.h"

namespace {

using namespace project_fields;

template <typename T>
std::vector<T> Active_Rows(const Table<T>& Tab) {
    std::vector<T> Rows;
    for (const T& Row : Tab.Rows())
        if (Row.Active == 1) Rows.push_back(Row);
    return Rows;
}

template <typename T>
std::vector<T> All_Rows(const Table<T>& Tab) {
    return {Tab.Rows().begin(), Tab.Rows().end()};
}

constexpr const char* Head_Lines =
    "0000 V5.0  (5.00) 31/12/03 12:00:00 C:\\Old.LWM\n"
    "0002         \n"
    "0010   48.1  2.2 -48.3 -2.4  48.5  2.6 -48.7 -2.8  48.9  2.01  47.11  2.12\n"
    "0017  1  2\n"
    "0018 \"C:\\Raw\"\n"
    "0019 \"C:\\Class out\"\n"
    "0020 \"C:\\Map.bmp\"\n"
    "0021  70000  80000\n"
    "0030 \"C:\\Out.bgl\"\n"
    "0031 \"C:\\Out Excl.bgl\"\n"
    "0040   501  701  502  702  1  2  3  4  5  503  6  703  7  504  8  704\n"
    "0060  100001  100002  100003  100004 -.5 -1.25  90000.5  90001.25\n"
    "0061  3  4\n"
    "0062  9  10  11\n"
    "0063  12 -99.9  13\n";

constexpr const char* Obj_Lines =
    "0100  2  40  900\n"
    "      \"\"\n      \"\"\n"
    "       0  0  0  0  0  0  0  0  0  0  0  0  0  0  0  0  0  0  0  0  0  0  0  0\n"
    "     \"\"\n     \"\"\n     \"\"\n     \"\"\n     \"\"\n     \"\"\n"
    "      \"a road\"\n      \"B1_03\"\n"
    "       40  2 -9999  101  102  103  104  105  106  207  108  109  110  111  112  113.5  114  "
    "115  116  117  118  119  120  121\n"
    "     \"t0\"\n     \"t1\"\n     \"t2\"\n     \"t3\"\n     \"t4\"\n     \"t5\"\n"
    "       10.25 -20.5\n       1E+15  1.5E-20\n";

std::string Cell_Lines() {
    std::string Lines =
        "0120  1\n       12.5  201  1  2  601  402  203  204  205  206  207  208  209\n"
        "     \"a0\n     \"a1\n     \"a2\n     \"a3\n     \"a4\n     \"a5\n     \"a text \n"
        "0140  1\n       602  403  3  4\n";
    for (int Flag = 0; Flag <= 100; ++Flag) Lines += "      " + std::to_string(Flag + 100) + "\n";
    return Lines +
           "0150  1\n      -9999  210  603  404\n"
           "0160  1\n      604  405  5  6  211\n"
           "0170  1\n      605  406  7  8  212\n"
           "0180  1\n      \"C:\\Pic.bmp\"\n"
           "      \"i0\"\n      \"i1\"\n      \"i2\"\n      \"i3\"\n      \"i4\"\n"
           "       301  1.5  2.5  3.5  4.5  302  303\n"
           "0200  4  1  1\n      123.5  .25 -.75\n"
           "End\n";
}

class Maker {
public:
    explicit Maker(std::mt19937_64& Source) : Source_(Source) {}

    Long Below(Long Limit) {
        return static_cast<Long>(Source_() % static_cast<std::uint64_t>(Limit));
    }
    void Fill_Head();
    void Fill_Objects();
    void Fill_Cells();
    void Fill_Ima();
    void Fill_PtGrid();

private:
    template <typename T>
    void Any(T& Field);
    void Any(std::string& Field);
    auto Any_Number() {
        return [this](auto& Field) { Any(Field); };
    }
    template <typename R>
    void Any_Cell(R& Cell);

    std::mt19937_64& Source_;
};

// A number as it is read: a text of 15 digits of a Double, 7 of a Single.
template <typename T>
void Maker::Any(T& Field) {
    if constexpr (std::numeric_limits<T>::is_integer) {
        constexpr T Odd[] = {0, 1, std::numeric_limits<T>::min(), std::numeric_limits<T>::max()};
        Field = Below(2) == 0 ? Odd[Below(4)] : static_cast<T>(Source_());
    } else {
        const Double Size = std::pow(10.0, Below(40) - 20);
        const Double X = static_cast<Double>(static_cast<std::int64_t>(Source_())) / 1e18 * Size;
        Field = static_cast<T>(Val(Str(static_cast<T>(X))));
    }
}

void Maker::Any(std::string& Field) {
    Field.clear();
    for (Long N = Below(4) == 0 ? Below(60) : Below(3); N > 0; --N) {
        const char C = static_cast<char>(Below(256));
        Field += C == '"' || C == '\r' || C == '\n' ? ' ' : C;
    }
}

template <typename R>
void Maker::Any_Cell(R& Cell) {
    Cell.AreaLon = static_cast<Int>(Below(Nb_AreaLon));
    Cell.AreaLat = static_cast<Int>(Below(Nb_AreaLat));
    if constexpr (requires { Cell.CellLon; }) {
        Cell.CellLon = static_cast<Int>(Below(Nb_Cell_In_Area));
        Cell.CellLat = static_cast<Int>(Below(Nb_Cell_In_Area));
    }
}

void Maker::Fill_Head() {
    Project_Head& H = The_Head;
    for (std::string* Text : {&H.Carte, &H.NameBgl, &H.NameBglExcl, &H.Dir_Raw, &H.Dir_LCWC})
        Any(*Text);
    for (Int* Field : {&H.Dir_Raw_On, &H.ReUse_Raw, &H.Meter_Feet, &H.FS_CFS, &H.LodMesh,
                       &H.Mesh_Done, &H.Nb_Tiles, &H.Nb_Tile_Rows, &H.Nb_Tile_Cols})
        Any(*Field);
    Any(H.Map_Width), Any(H.Map_Height), Any(H.Last_Num_Obj), Any(H.Delta_Alt);
    Calibration& C = The_Calibration;
    const auto Limited = [this](Int Limit) {
        return [this, Limit](Int& Field) { Field = static_cast<Int>(Below(Limit)); };
    };
    Line_0010(C, Any_Number());
    Line_0040(C, Limited(Nb_AreaLat), Limited(Nb_AreaLon), Limited(Nb_Cell_In_Area));
    Line_0060(C, Any_Number());
    Any(C.CadNW_Done), Any(C.CadSE_Done);
}

void Maker::Fill_Objects() {
    for (Long N = Below(12); N > 0; --N) {
        Last_Num_Obj = 0;
        const Long I = Obj_Add({}, 0.0, 0.0);
        const Long Nb = Below(6);
        for (Long K = 0; K < Nb; ++K) Pt_Append(I, 0.0, 0.0);
        Obj& O = Tab_Obj[I];
        Obj_Line(O, Any_Number());
        O.Nb_Pts = Nb + 1;
        Any(O.Attr.Text_Rt), Any(O.Attr.Imbrication);
        for (std::string& Name : O.Attr.Texture_Name) Any(Name);
        if (Nb > 0 && Below(4) == 0) Pt_Delete(I, O.First_Pt);
        if (Below(6) == 0) O.Nb_Pts = 0;  // its chain then means nothing
        if (Below(5) == 0) Obj_Delete(I);
    }
    for (Pt& P : Tab_Pt.Rows()) Any(P.X), Any(P.Y);
    Any(Last_Num_Obj);
}

void Maker::Fill_Cells() {
    for (Long N = Below(6); N > 0; --N) {
        Area A;
        Area_Line(A, Any_Number());
        Any_Cell(A);
        Any(A.Texte);
        for (std::string& Name : A.Texture_Name) Any(Name);
        Tab_Area.Append(A);
        Excl E;
        Any_Cell(E);
        for (Byte& Flag : E.Chk_Excl) Any(Flag);
        Tab_Excl.Append(E);
        Lod8 L;
        Lod8_Line(L, Any_Number());
        Any_Cell(L);
        Tab_Lod8.Append(L);
    }
    const auto Fill_Class = [this](auto& Tab, auto Record) {
        for (Long N = Below(6); N > 0; --N) {
            Any_Cell(Record);
            Any(Record.Num);
            Tab.Append(Record);
        }
    };
    Fill_Class(Tab_LC, LC_Cell());
    Fill_Class(Tab_WC, WC_Cell());
}

void Maker::Fill_Ima() {
    for (Long N = Below(6); N > 0; --N) {
        Ima M;
        Ima_Line(M, Any_Number());
        M.Active = static_cast<Int>(Below(2));
        Any(M.DirFic);
        for (std::string& Name : M.Texture_Name) Any(Name);
        Tab_Ima.Append(M);
    }
}

void Maker::Fill_PtGrid() {
    for (Long N = Below(6); N > 0; --N) {
        PtGrid P;
        PtGrid_Line(P, Any_Number());
        P.Active = static_cast<Byte>(Below(2));
        Tab_PtGrid.Append(P);
    }
}

}  // namespace

Project_Copy Copy_Of_Project() {
    Project_Copy Copy{.Head = The_Head,
                      .Cal = The_Calibration,
                      .Objs = {},
                      .Areas = All_Rows(Tab_Area),
                      .Lod8s = All_Rows(Tab_Lod8),
                      .Excls = All_Rows(Tab_Excl),
                      .LCs = All_Rows(Tab_LC),
                      .WCs = All_Rows(Tab_WC),
                      .Imas = Active_Rows(Tab_Ima),
                      .PtGrids = Active_Rows(Tab_PtGrid)};
    Copy.Head.Nom_Projet.clear();
    for (const Obj& O : Tab_Obj.Rows()) {
        Copy.Objs.push_back({.Num = O.Num, .Attr = O.Attr, .Pts = {}});
        for (Long P = O.First_Pt, N = 0; N < O.Nb_Pts; P = Tab_Pt[P].Next, ++N)
            Copy.Objs.back().Pts.emplace_back(Tab_Pt[P].X, Tab_Pt[P].Y);
    }
    return Copy;
}

void Make_Random_Project(std::mt19937_64& Source) {
    Model_Reset();
    Maker M(Source);
    M.Fill_Head();
    M.Fill_Objects();
    M.Fill_Cells();
    M.Fill_Ima();
    M.Fill_PtGrid();
}

std::string_view Body_Of(std::string_view File) {
    for (int Line = 0; Line < 2; ++Line) File.remove_prefix(File.find("\r\n") + 2);
    return File;
}

std::string With_Cr_Lf(std::string_view Text) {
    std::string Lines;
    for (const char C : Text) {
        if (C == '\n') Lines += '\r';
        Lines += C;
    }
    return Lines;
}

std::string Whole_File() {
    return With_Cr_Lf(std::string(Head_Lines) + Obj_Lines + Cell_Lines());
}

std::string With(std::string Text, std::string_view Old, std::string_view New) {
    const std::size_t At = Text.find(Old);
    EXPECT_NE(At, std::string::npos) << Old;
    return At == std::string::npos ? Text : Text.replace(At, Old.size(), New);
}
