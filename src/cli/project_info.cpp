// cli/project_info.cpp - the overview, key by key.
#include "cli/project_info.h"

#include <array>
#include <string_view>

#include "cli/json.h"
#include "core/model.h"
#include "core/project_paths.h"
#include "gen/source_frame.h"
#include "platform/paths.h"

namespace {

// A JSON object, built one key at a time.
class Object {
public:
    explicit Object(int Depth) : Indent_(static_cast<std::size_t>(Depth) * 2, ' ') {}
    Object& Raw(std::string_view Key, const std::string& Value) {
        Text_ += (Text_.empty() ? "" : ",") + std::string("\n") + Indent_ + Json_Text(Key) + ": " +
                 Value;
        return *this;
    }
    Object& Put(std::string_view Key, Double X) { return Raw(Key, Json_Number(X)); }
    Object& Put(std::string_view Key, const std::string& Text) { return Raw(Key, Json_Text(Text)); }
    std::string Done() const { return "{" + Text_ + "\n" + Indent_.substr(2) + "}"; }

private:
    std::string Indent_;
    std::string Text_;
};

template <typename T>
Long Nb_Active(const Project_Table<T>& Tab) {
    Long Nb = 0;
    for (const T& Record : Tab.Rows()) Nb += Record.Active == 1;
    return Nb;
}

std::string Counts() {
    Long Nb_Points = 0;
    std::array<Long, 4> Nb_Of_Kind{};
    for (Long I = First_Obj; I <= Nb_Obj; ++I) {
        Nb_Points += Tab_Obj[I].Nb_Pts;
        const Int Kind = Tab_Obj[I].Attr.SurfShore;
        if (Kind >= 0 && Kind <= 3) ++Nb_Of_Kind[static_cast<std::size_t>(Kind)];
    }
    return Object(2)
        .Put("objects", Nb_Obj - 1)
        .Put("polygons", Nb_Of_Kind[0])
        .Put("polygons_with_shore", Nb_Of_Kind[1])
        .Put("lines", Nb_Of_Kind[2])
        .Put("coastlines", Nb_Of_Kind[3])
        .Put("points", Nb_Points)
        .Put("cells", Nb_Area)
        .Put("areas", Nb_Lod8)
        .Put("exclusions", Nb_Excl)
        .Put("land_classes", Nb_LC)
        .Put("water_classes", Nb_WC)
        .Put("textures", Nb_Active(Tab_Ima))
        .Put("altitude_points", Nb_Active(Tab_PtGrid))
        .Done();
}

std::string Map() {
    const std::string Found = Map_Path();
    return Object(2)
        .Put("file", Shown_Path(In_Project(Carte)))
        .Raw("found", File_Exists(Found) ? Json_Text(Shown_Path(Found)) : "null")
        .Put("width", Map_Width)
        .Put("height", Map_Height)
        .Done();
}

std::string Extent(Double North, Double South, Double East, Double West) {
    return Object(2)
        .Put("north", North)
        .Put("south", South)
        .Put("east", East)
        .Put("west", West)
        .Done();
}

// What generating may leave behind, by kind.
std::string Outputs() {
    const std::string Stem = Shown_Path(Bgl_Stem());
    return Object(2)
        .Put("exclusions", Shown_Path(In_Project(NameBglExcl)))
        .Put("remesh", Stem + "_2.bgl")
        .Put("land_water", Stem + "_3.bgl")
        .Put("textured_polygons", Stem + "_5.bgl")
        .Put("lines", Stem + "_9.bgl")
        .Put("night_lines", Stem + "_9???.bgl")
        .Put("classes", Shown_Path(In_Project(Dir_LCWC)))
        .Done();
}

}  // namespace

std::string Project_Info() {
    return Object(1)
               .Put("project", Shown_Path(Nom_Projet))
               .Put("simulator", std::string(FS_CFS == 1 ? "CFS2" : "FS"))
               .Raw("counts", Counts())
               .Raw("map", Map())
               .Raw("extent", Extent(LatMapNW, LatMapSE, LonMapSE, LonMapNW))
               .Raw("work_grid", Extent(LatGridNW, LatGridSE, LonGridSE, LonGridNW))
               .Raw("outputs", Outputs())
               .Done() +
           "\n";
}
