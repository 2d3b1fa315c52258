// core/project_read.cpp - a project file as the model.
#include <algorithm>
#include <concepts>
#include <limits>
#include <optional>
#include <string>

#include "core/field_reader.h"
#include "core/host.h"
#include "core/messages.h"
#include "core/model_changes.h"
#include "core/model_ops.h"
#include "core/number_text.h"
#include "core/program.h"
#include "core/project_fields.h"
#include "core/project_file.h"
#include "core/project_upgrade.h"
#include "core/view_calls.h"
#include "core/within_memory.h"
#include "platform/files.h"
#include "platform/paths.h"

namespace {

using namespace project_fields;

constexpr Double Newest_Version = 5.0;
constexpr Double Oldest_Version = 4.0;

// The most rows that a table gets room for beyond its count.
constexpr Long Most_Margin = 50;

// The fewest bytes that a written object or point takes: what is left of the file must hold the
// records that a count announces before memory is taken for them.
constexpr std::size_t Bytes_Of_Obj = 100;
constexpr std::size_t Bytes_Of_Pt = 10;

// Reads the lines behind the first; once the file counts as damaged nothing more is taken from it.
class Project_Reader : private Field_Reader {
public:
    /// False when the file is damaged.
    bool Read_All();
    using Field_Reader::Damaged_Line;

private:
    void Tagged_Line(std::string_view Tag);
    template <typename T>
    void Take_Below(T& Field, Long Limit);
    void Take_Count(Long& Count, Long Lines_A_Record);
    auto Taker() {
        return [this](auto& Field) { Take(Field); };
    }
    template <typename R>
    void Check_Cell(const R& Cell);

    void Read_Head();
    void Read_Objects();
    void Read_Obj();
    void Read_Chain(Obj& O);
    template <typename R, typename F>
    void Read_Section(std::string_view Tag, Project_Table<R>& Tab, Long Least, Long Margin,
                      Long Lines_A_Record, F&& Read_Record);
    void Read_Cell_Sections();
    void Read_Area(Area& A);
    void Read_Excl(Excl& E);
    void Read_Ima(Ima& M);
    void Read_PtGrid_Section();
    void Read_PtGrid_Records(Long Count);
};

void Project_Reader::Tagged_Line(std::string_view Tag) {
    Line();
    if (Cur_Line.substr(0, 4) != Tag) Damage();
}

template <typename T>
void Project_Reader::Take_Below(T& Field, Long Limit) {
    Take(Field);
    if (Field < 0 || Field >= Limit) Damage();
}

// A count of records that follow, each of as many lines that are not empty.
void Project_Reader::Take_Count(Long& Count, Long Lines_A_Record) {
    Take(Count);
    const std::size_t Most_Lines = (Reader_Bytes_Left() + 1) / 2;
    if (Count < 0 || Count > std::numeric_limits<Long>::max() - Most_Margin ||
        static_cast<std::size_t>(Count) > Most_Lines / static_cast<std::size_t>(Lines_A_Record))
        Damage();
}

template <typename R>
void Project_Reader::Check_Cell(const R& Cell) {
    const auto Inside = [](Int X, Int Limit) { return X >= 0 && X < Limit; };
    if (!Inside(Cell.AreaLon, Nb_AreaLon) || !Inside(Cell.AreaLat, Nb_AreaLat)) Damage();
    if constexpr (std::derived_from<R, Cell_Pos>)
        if (!Inside(Cell.CellLon, Nb_Cell_In_Area) || !Inside(Cell.CellLat, Nb_Cell_In_Area))
            Damage();
}

void Project_Reader::Read_Head() {
    Calibration& C = The_Calibration;
    Project_Head& H = The_Head;
    const auto Field = Taker();
    const auto Below = [this](Long Limit) {
        return [this, Limit](auto& F) { Take_Below(F, Limit); };
    };
    Line();  // of the save, 0002
    Line(), Line_0010(C, Field);
    Line(), Field(H.Dir_Raw_On), Field(H.ReUse_Raw);
    Quoted_Line(H.Dir_Raw);
    Quoted_Line(H.Dir_LCWC);
    Quoted_Line(H.Carte);
    Line(), Field(H.Map_Width), Field(H.Map_Height);
    Quoted_Line(H.NameBgl);
    Quoted_Line(H.NameBglExcl);
    Line(), Line_0040(C, Below(Nb_AreaLat), Below(Nb_AreaLon), Below(Nb_Cell_In_Area));
    Line(), Line_0060(C, Field);
    Line(), Field(C.CadNW_Done), Field(C.CadSE_Done);
    Line(), Field(H.Nb_Tiles), Field(H.Nb_Tile_Rows), Field(H.Nb_Tile_Cols);
    Line(), Field(H.Meter_Feet), Field(H.Delta_Alt), Field(H.FS_CFS);
}

void Project_Reader::Read_Chain(Obj& O) {
    const Long Nb = O.Nb_Pts;
    if (Nb < 0 || Nb > std::numeric_limits<Long>::max() - Nb_Pt) Damage();
    if (Is_Damaged() || Nb == 0) return;
    O.First_Pt = Nb_Pt + 1;
    for (Long N = 1; N <= Nb && !Is_Damaged(); ++N) {
        Pt P{.Prev = N == 1 ? 0 : Nb_Pt, .Next = N == Nb ? 0 : Nb_Pt + 2};
        Line();
        Take(P.X);
        Take(P.Y);
        Tab_Pt.Append(P);
    }
    O.Last_Pt = Nb_Pt;
}

void Project_Reader::Read_Obj() {
    Obj O;
    Quoted_Line(O.Attr.Text_Rt);
    Quoted_Line(O.Attr.Imbrication);
    Line();
    Obj_Line(O, Taker());
    for (std::string& Name : O.Attr.Texture_Name) Quoted_Line(Name);
    Read_Chain(O);
    if (V24_Upgrade != 0) Upgrade_Obj(O.Attr);
    if (!Is_Damaged()) Tab_Obj.Append(std::move(O));
}

void Project_Reader::Read_Objects() {
    constexpr Long Lines_Of_Obj = 9;
    Tagged_Line("0100");
    Long Count = 0;
    Long Pool = 0;  // a high-water mark, holes included: it tells nothing of the lines that follow
    Take_Count(Count, Lines_Of_Obj);
    Take(Last_Num_Obj);
    Take(Pool);
    if (Count < 1 || Pool < 0) Damage();
    if (Is_Damaged()) return;
    const std::size_t Left = Reader_Bytes_Left();
    Tab_Obj.Dimension(Count);
    Tab_Obj.Reserve(static_cast<Long>(
        std::min<std::size_t>(static_cast<std::size_t>(Count), Left / Bytes_Of_Obj)));
    Tab_Pt.Dimension(Pool == 0 ? 10 : Pool);
    Tab_Pt.Reserve(static_cast<Long>(
        std::min<std::size_t>(static_cast<std::size_t>(Pool), Left / Bytes_Of_Pt)));
    for (Long I = 1; I <= Count && !Is_Damaged(); ++I) Read_Obj();
}

// A table that keeps its capacity has a Least of 0.
template <typename R, typename F>
void Project_Reader::Read_Section(std::string_view Tag, Project_Table<R>& Tab, Long Least,
                                  Long Margin, Long Lines_A_Record, F&& Read_Record) {
    if (Is_Damaged()) return;
    Tab.Dimension(Least == 0 ? Tab.Max() : Least);
    Tagged_Line(Tag);
    Long Count = 0;
    Take_Count(Count, Lines_A_Record);
    if (Is_Damaged() || Count == 0) return;
    Tab.Dimension(Count + Margin);
    for (Long I = 1; I <= Count && !Is_Damaged(); ++I) {
        R Record;
        Read_Record(Record);
        if (!Is_Damaged()) Tab.Append(std::move(Record));
    }
}

void Project_Reader::Read_Area(Area& A) {
    Line();
    Area_Line(A, Taker());
    Check_Cell(A);
    for (std::string& Name : A.Texture_Name) Quoted_Line(Name);
    Quoted_Line(A.Texte);
}

void Project_Reader::Read_Excl(Excl& E) {
    Line();
    Cell_Line(E, Taker());
    Check_Cell(E);
    for (Byte& Flag : E.Chk_Excl) {
        Line();
        Take(Flag);
    }
    if (V24_Upgrade != 0 && The_V24.Chk_Change_Layer_Exclude) Upgrade_Excl(E);
}

void Project_Reader::Read_Ima(Ima& M) {
    M.Active = 1;
    Quoted_Line(M.DirFic);
    for (std::string& Name : M.Texture_Name) Quoted_Line(Name);
    Line();
    Ima_Line(M, Taker());
}

void Project_Reader::Read_Cell_Sections() {
    Read_Section("0120", Tab_Area, 3, 3, 8, [this](Area& A) { Read_Area(A); });
    Read_Section("0140", Tab_Excl, 0, 2, 1 + Nb_Chk_Excl, [this](Excl& E) { Read_Excl(E); });
    Read_Section("0150", Tab_Lod8, 3, 3, 1, [this](Lod8& L) {
        Line();
        Lod8_Line(L, Taker());
        Check_Cell(L);
    });
    const auto Read_Class = [this](auto& Cell) {
        Line();
        Class_Line(Cell, Taker());
        Check_Cell(Cell);
    };
    Read_Section("0160", Tab_LC, 1, 1, 1, Read_Class);
    Read_Section("0170", Tab_WC, 1, 1, 1, Read_Class);
    Read_Section("0180", Tab_Ima, 3, 3, 7, [this](Ima& M) { Read_Ima(M); });
}

void Project_Reader::Read_PtGrid_Section() {
    if (Is_Damaged()) return;
    Tab_PtGrid.Dimension(Most_Margin);
    Tagged_Line("0200");
    Take(LodMesh);
    Take(Mesh_Done);
    Long Count = 0;
    Take_Count(Count, 1);
    if (Is_Damaged() || Count == 0) return;
    Tab_PtGrid.Dimension(Count + Most_Margin);
    Read_PtGrid_Records(Count);
}

void Project_Reader::Read_PtGrid_Records(Long Count) {
    for (Long I = 1; I <= Count && !Is_Damaged(); ++I) {
        PtGrid P{.Active = 1};
        Line();
        PtGrid_Line(P, Taker());
        Tab_PtGrid.Append(P);
    }
}

bool Project_Reader::Read_All() {
    Read_Head();
    if (!Is_Damaged()) Read_Objects();
    Read_Cell_Sections();
    Read_PtGrid_Section();
    return !Is_Damaged();
}

// Asks how a file of version 4.0 is to be brought up to date.
void Ask_Upgrade() {
    The_V24 = {};
    The_Host().Set_Pointer(Pointer_Shape::Normal);
    if (The_Host().Run_Form("Frm_V24") != Form_End::Ok)
        The_V24 = {.Chk_Adapt_lines = false,
                   .Chk_Change_layer_Line = false,
                   .Chk_Change_Layer_Poly = false,
                   .Chk_Change_Layer_Exclude = false};
    The_Host().Set_Pointer(Pointer_Shape::Hourglass);
    const bool Any = The_V24.Chk_Adapt_lines || The_V24.Chk_Change_layer_Line ||
                     The_V24.Chk_Change_Layer_Poly || The_V24.Chk_Change_Layer_Exclude;
    V24_Upgrade = Any ? 1 : 0;
}

// Reads the version out of the first line, and shows why a file is refused.
bool Version_Is_Accepted(std::string_view Path) {
    const std::optional<Double> Version = Stated_Version();
    if (!Version || *Version > Newest_Version) {
        Msg_Result = Msg_Show_Text(30, Line_Of_File(Path, Reader_Line()));
        return false;
    }
    if (*Version < Oldest_Version) {
        Plain_Box("Old Terrafold version" + std::string(Str(*Version)) + "not allowed");
        return false;
    }
    if (*Version == Oldest_Version) Ask_Upgrade();
    return true;
}

// Leaves nothing of a file that could not be read to its end.
void Clear_Model() {
    const std::string Name = Nom_Projet;
    Model_Reset();
    Nom_Projet = Name;
}

}  // namespace

void Read_Project_Text(std::string_view Text, std::string_view Path) {
    Load_Failed = 0;
    V24_Upgrade = 0;
    Reader_Open(Text);
    const bool Accepted = Version_Is_Accepted(Path);
    Project_Reader Reader;
    const bool Sound = Accepted && Reader.Read_All();
    ++Model_Changes;
    PtGrid_Forget();
    Reader_Open({});
    if (Sound) {
        Call(The_View.Ima_Load);
        return;
    }
    Load_Failed = 1;
    if (!Accepted) return;
    Clear_Model();
    Msg_Result = Msg_Show_Text(31, Line_Of_File(Path, Reader.Damaged_Line()));
}

void Read_Project_File(std::string_view Path) {
    bool Is_There = true;
    const bool Fits = Within_Memory([&] {
        const std::optional<std::string> Text = File_Read_Or_Throw(Path);
        Is_There = Text.has_value();
        if (Is_There) Read_Project_Text(*Text, Path);
    });
    if (Fits && Is_There) return;
    Load_Failed = Fits ? 1 : Load_No_Memory;
    if (!Fits) {
        Reader_Open({});
        Clear_Model();
        return Box_No_Memory("The project", "Le projet");
    }
    Plain_Box(In_Language("The file cannot be read: ", "Le fichier ne peut pas \xEAtre lu : ") +
              Shown_Path(Path));
}
