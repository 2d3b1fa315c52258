// core/reference_file.cpp - attributes out of reference files and into them.
#include "core/reference_file.h"

#include "core/field_reader.h"
#include "core/field_writer.h"
#include "core/host.h"
#include "core/messages.h"
#include "core/model.h"
#include "core/names.h"
#include "core/program.h"
#include "core/project_fields.h"
#include "core/settings.h"
#include "platform/clock.h"
#include "platform/files.h"
#include "platform/paths.h"
#include "platform/text1252.h"

namespace {

using project_fields::Attr_Line;

struct Reference {
    std::string Name;
    Attr Of_Object;
};

// The lines behind the first. A file that has fewer numbers than its version is damaged.
Reference Read_Lines(Field_Reader& In, Double Version) {
    Reference R;
    Attr& A = R.Of_Object;
    if (Version < 4.0) A.VTP1_SpecNor = 0;
    In.Quoted_Line(R.Name);
    In.Quoted_Line(A.Text_Rt);
    In.Quoted_Line(A.Imbrication);
    In.Line();
    const auto Take = [&In](auto& Field) {
        if (!In.Take(Field)) In.Damage();
    };
    Attr_Line(A, Take, Version);
    for (std::string& Texture : A.Texture_Name) In.Quoted_Line(Texture);
    return R;
}

void Write_Lines(Field_Writer&& Out, const Reference& R) {
    const Attr& A = R.Of_Object;
    constexpr std::string_view Blanks = "      ";
    Out.Put("0000 V4.0" + Date_Time_Text());
    Out.End_Line();
    Out.Text_Line(Blanks, R.Name);
    Out.Text_Line(Blanks, A.Text_Rt);
    Out.Text_Line(Blanks, A.Imbrication);
    Out.Number_Line("       ", [&](auto&& Field) { Attr_Line(A, Field); });
    for (const std::string& Texture : A.Texture_Name) Out.Text_Line("     ", Texture);
}

bool Write_File(std::string_view Path, const Reference& R) {
    File_Writer Out(Path, File_Writer::Mode::Safe);
    if (!Out.Is_Open()) return false;
    Write_Lines(Field_Writer(Out), R);
    return Out.Commit();
}

void Set_Last_Used(std::string_view Path) {
    DerRefLu = std::string(Path);  // Path may be a view of it
    Setting_Put("DerRefLu", DerRefLu);
}

bool Is_Reference(std::string_view File) {
    std::string Base, Ext;
    Name_Split(File, Base, Ext);
    return Ext == "REF";
}

// The name in a file; nothing when it has no second line.
std::optional<std::string> Name_In(std::string_view Path) {
    const std::optional<std::string> Text = File_Read(Path);
    if (!Text) return {};
    Reader_Open(*Text);
    std::optional<std::string> Name;
    if (Next_Line() && Next_Line()) {
        Next_Quoted();
        Name = Cur_Token.empty() ? "???" : Cur_Token;
    }
    Reader_Open({});
    return Name;
}

}  // namespace

std::string Ref_Dir() {
    return App_Path + "\\Resource\\";
}

bool Ref_Read_Text(std::string_view Text, std::string_view Path) {
    Reader_Open(Text);
    const std::optional<Double> Version = Stated_Version();
    Field_Reader In;
    const Reference R = Version ? Read_Lines(In, *Version) : Reference();
    const Long First_Line = Reader_Line();
    Reader_Open({});
    if (!Version || In.Is_Damaged()) {
        Msg_Result = Msg_Show_Text(Version ? 31 : 30,
                                   Line_Of_File(Path, Version ? In.Damaged_Line() : First_Line));
        return false;
    }
    Cur_Attr = R.Of_Object;
    Ref_Name = R.Name;
    return true;
}

bool Ref_Read(std::string_view Path) {
    if (!File_Exists(Path)) return false;
    const std::optional<std::string> Text = File_Read(Path);
    if (!Text)
        Plain_Box(In_Language("The file cannot be read: ", "Le fichier ne peut pas \xEAtre lu : ") +
                  Shown_Path(Path));
    if (!Text || !Ref_Read_Text(*Text, Path)) return false;
    Set_Last_Used(Path);
    return true;
}

bool Ref_Save(std::string_view Path, std::string_view Name) {
    const Reference R{std::string(Trim(Without_Marks(Name))), Cur_Attr};
    if (!Write_File(Path, R)) {
        Plain_Box(In_Language("The reference could not be saved: ",
                              "La r\xE9"
                              "f\xE9rence n'a pas pu \xEAtre enregistr\xE9"
                              "e : ") +
                  Shown_Path(Path));
        return false;
    }
    Ref_Name = R.Name;
    Set_Last_Used(Path);
    return true;
}

void Ref_List() {
    Ref_Files.clear();
    Ref_Names.clear();
    for (std::string& File : Dir_Files(Ref_Dir())) {
        if (!Is_Reference(File)) continue;
        std::optional<std::string> Name = Name_In(Ref_Dir() + File);
        if (!Name) continue;
        Ref_Files.push_back(std::move(File));
        Ref_Names.push_back(std::move(*Name));
    }
    Nb_Refs = static_cast<Long>(Ref_Files.size());
}
