// core/project_write.cpp - the model as a project file.
#include <algorithm>
#include <cstdint>
#include <string>

#include "core/field_writer.h"
#include "core/host.h"
#include "core/journal.h"
#include "core/messages.h"
#include "core/model.h"
#include "core/program.h"
#include "core/project_fields.h"
#include "core/project_file.h"
#include "core/project_watch.h"
#include "platform/clock.h"
#include "platform/file_owner.h"
#include "platform/paths.h"
#include "platform/text1252.h"

namespace {

using namespace project_fields;

class Project_Writer : private Field_Writer {
public:
    using Field_Writer::Field_Writer;

    void Write_All(Int Save_As, std::string_view Path);

private:
    void Write_First_Lines(Int Save_As, std::string_view Path);
    void Write_Head();
    void Write_Obj(const Obj& O);
    void Write_Objects();
    void Write_Cell_Records();
    void Write_Ima();
    void Write_PtGrid();

    template <typename R>
    void Class_Section(std::string_view Tag, const Project_Table<R>& Tab) {
        Number_Line(Tag, [&](auto&& Field) { Field(Tab.Nb()); });
        for (const R& Record : Tab.Rows())
            Number_Line("     ", [&](auto&& Field) { Class_Line(Record, Field); });
    }
};

void Project_Writer::Write_First_Lines(Int Save_As, std::string_view Path) {
    Put("0000 V5.0  (5.00) " + Date_Time_Text() + " ");
    Put(Without_Marks(Path));
    End_Line();
    Put("0002         ");
    if (Save_As == 1) Put(" issu de " + Without_Marks(Nom_Projet));
    End_Line();
}

void Project_Writer::Write_Head() {
    const Calibration& C = The_Calibration;
    const Project_Head& H = The_Head;
    Number_Line("0010  ", [&](auto&& Field) { Line_0010(C, Field); });
    Number_Line("0017 ", [&](auto&& Field) { Field(H.Dir_Raw_On), Field(H.ReUse_Raw); });
    Text_Line("0018 ", H.Dir_Raw);
    Text_Line("0019 ", H.Dir_LCWC);
    Text_Line("0020 ", H.Carte);
    Number_Line("0021 ", [&](auto&& Field) { Field(H.Map_Width), Field(H.Map_Height); });
    Text_Line("0030 ", H.NameBgl);
    Text_Line("0031 ", H.NameBglExcl);
    Number_Line("0040  ", [&](auto&& Field) { Line_0040(C, Field, Field, Field); });
    Number_Line("0060 ", [&](auto&& Field) { Line_0060(C, Field); });
    Number_Line("0061 ", [&](auto&& Field) { Field(C.CadNW_Done), Field(C.CadSE_Done); });
    Number_Line("0062 ", [&](auto&& Field) {
        Field(H.Nb_Tiles), Field(H.Nb_Tile_Rows), Field(H.Nb_Tile_Cols);
    });
    Number_Line("0063 ",
                [&](auto&& Field) { Field(H.Meter_Feet), Field(H.Delta_Alt), Field(H.FS_CFS); });
}

void Project_Writer::Write_Obj(const Obj& O) {
    constexpr std::string_view Blanks = "      ";
    Text_Line(Blanks, O.Attr.Text_Rt);
    Text_Line(Blanks, O.Attr.Imbrication);
    Number_Line(Blanks, [&](auto&& Field) { Obj_Line(O, Field); });
    for (const std::string& Name : O.Attr.Texture_Name) Text_Line("     ", Name);
    for (Long P = O.First_Pt, N = 0; N < O.Nb_Pts; P = Tab_Pt[P].Next, ++N) {
        Put(Blanks);
        Put(Writable(Tab_Pt[P].X));
        Put(" ");
        Put(Writable(Tab_Pt[P].Y));
        End_Line();
    }
}

void Project_Writer::Write_Objects() {
    Number_Line("0100 ", [](auto&& Field) { Field(Nb_Obj), Field(Last_Num_Obj), Field(Nb_Pt); });
    for (const Obj& O : Tab_Obj.Rows()) Write_Obj(O);
}

void Project_Writer::Write_Cell_Records() {
    Number_Line("0120 ", [](auto&& Field) { Field(Nb_Area); });
    for (const Area& A : Tab_Area.Rows()) {
        Number_Line("      ", [&](auto&& Field) { Area_Line(A, Field); });
        for (const std::string& Name : A.Texture_Name) Text_Line("     ", Name, "");
        Text_Line("     ", A.Texte, "");
    }
    Number_Line("0140 ", [](auto&& Field) { Field(Nb_Excl); });
    for (const Excl& E : Tab_Excl.Rows()) {
        Number_Line("      ", [&](auto&& Field) { Cell_Line(E, Field); });
        for (const Byte Flag : E.Chk_Excl) Number_Line("     ", [&](auto&& Field) { Field(Flag); });
    }
    Number_Line("0150 ", [](auto&& Field) { Field(Nb_Lod8); });
    for (const Lod8& L : Tab_Lod8.Rows())
        Number_Line("      ", [&](auto&& Field) { Lod8_Line(L, Field); });
    Class_Section("0160 ", Tab_LC);
    Class_Section("0170 ", Tab_WC);
}

template <typename T>
Long Nb_Active(const Project_Table<T>& Tab) {
    const auto Rows = Tab.Rows();
    return static_cast<Long>(
        std::count_if(Rows.begin(), Rows.end(), [](const T& R) { return R.Active == 1; }));
}

void Project_Writer::Write_Ima() {
    Number_Line("0180 ", [](auto&& Field) { Field(Nb_Active(Tab_Ima)); });
    for (const Ima& M : Tab_Ima.Rows()) {
        if (M.Active != 1) continue;
        Text_Line("      ", M.DirFic);
        for (const std::string& Name : M.Texture_Name) Text_Line("      ", Name);
        Number_Line("      ", [&](auto&& Field) { Ima_Line(M, Field); });
    }
}

void Project_Writer::Write_PtGrid() {
    Number_Line("0200 ", [](auto&& Field) {
        Field(LodMesh), Field(Mesh_Done), Field(Nb_Active(Tab_PtGrid));
    });
    for (const PtGrid& P : Tab_PtGrid.Rows())
        if (P.Active == 1) Number_Line("     ", [&](auto&& Field) { PtGrid_Line(P, Field); });
}

void Project_Writer::Write_All(Int Save_As, std::string_view Path) {
    Write_First_Lines(Save_As, Path);
    Write_Head();
    Write_Objects();
    The_Host().Turn();
    Write_Cell_Records();
    The_Host().Turn();
    Write_Ima();
    Write_PtGrid();
    Put("End");
    End_Line();
}

// The progress of a save, shown while this object lives. It does not move.
class Save_Progress {
public:
    Save_Progress() {
        Host& H = The_Host();
        H.Set_Pointer(Pointer_Shape::Hourglass);
        H.Set_Caption("Fram_Creat_2500", In_Language("Project", "Projet"));
        H.Set_Caption("LTex2500", "Save");
        H.Set_Caption("LPourCent", "0%");
        H.Set_Caption("LNbTex", "");
        H.Set_Visible("Fram_Creat_2500", true);
        H.Refresh();
    }
    ~Save_Progress() {
        The_Host().Set_Visible("Fram_Creat_2500", false);
        The_Host().Set_Pointer(Pointer_Shape::Normal);
    }
    Save_Progress(const Save_Progress&) = delete;
    Save_Progress& operator=(const Save_Progress&) = delete;
};

// Before the file has its name, Sum_Known is told of what is in it.
template <typename F>
bool Write_File(Int Save_As, const std::string& Path, F&& Sum_Known) {
    File_Writer Out(Path, File_Writer::Mode::Safe);
    if (!Out.Is_Open()) return false;
    Project_Writer(Out).Write_All(Save_As, Path);
    Sum_Known(Out.Sum());
    return Out.Commit();
}

bool Write_Project_File(Int Save_As, const std::string& Path) {
    const Save_Progress Progress;
    std::uint64_t Sum = 0;
    const bool Written = Write_File(Save_As, Path, [&](std::uint64_t Of_File) {
        Sum = Of_File;
        if (Save_As == 0) Journal_Saving(Sum);
    });
    if (Written && Save_As == 0) Journal_Saved(Sum);
    return Written;
}

// A line with the reason, where it can be told.
std::string Why_Not_Saved(const std::string& Path) {
    if (!File_Only_Its_Owner_Replaces(Path)) return {};
    return std::string("\r\n") +
           In_Language(
               "It belongs to another user, and its directory lets only that user replace it.",
               "Il appartient \xE0 un autre utilisateur, et son r\xE9pertoire ne permet "
               "qu'\xE0 lui de le remplacer.");
}

}  // namespace

bool Save_Project(Int Save_As, std::string_view New_Path) {
    if (Projet_Open == 0) return false;
    // Letters' case does not part two files, so it does not part two names either.
    if (Save_As == 1 && Equal_No_Case(New_Path, Nom_Projet)) {
        Msg_Result = Msg_Show(14);
        return false;
    }
    const std::string Path = Save_As == 1 ? std::string(New_Path) : Nom_Projet;
    if (Save_As == 0 && !Project_May_Be_Replaced(Path)) return false;
    if (Write_Project_File(Save_As, Path)) {
        if (Save_As == 0) Project_Seen(Path);
        return true;
    }
    Plain_Box(In_Language("The project could not be saved; the file is as it was before: ",
                          "Le projet n'a pas pu \xEAtre enregistr\xE9 ; le fichier est rest\xE9 "
                          "comme avant : ") +
              Shown_Path(Path) + Why_Not_Saved(Path));
    return false;
}

bool Write_Model(const std::string& Path) {
    return Write_File(0, Path, [](std::uint64_t) {});
}
