// gen/lwm_text.cpp - frame of the data blocks, the index behind them, and heads of lists.
#include "gen/lwm_text.h"

namespace {

// The short form of a list's head has three bits for the number.
constexpr Long Max_Short_List = 6;

void Write_Index(Source_File& Out, std::span<const Lwm_Area> Areas) {
    Out.Line("    LWMIndexStart       Label   Word");
    Out.Line("         LWMIndexHeader ", static_cast<Long>(Areas.size()), ",LWMIndexData");
    Out.Line("    LWMIndexData       Label   Word");
    Long Mark = 0;
    for (const Lwm_Area& A : Areas) {
        if (A.Has_Data != 0)
            Out.Line("        LWMIndexEntry   Cell_", A.AreaLon, "_", A.AreaLat,
                     ",LWMStart,datamark_", Mark, ",datamark_", Mark + 1);
        else
            Out.Line("        LWMIndexEntry   Cell_", A.AreaLon, "_", A.AreaLat,
                     ",LWMStart,LWMStart,LWMStart");
        ++Mark;
    }
    Out.Line("LWMEnd          Label   Word");
}

}  // namespace

void Lwm_Skeleton(Source_File& Out, Long Version, std::span<const Lwm_Area> Areas,
                  const std::function<void(Long)>& Write_Area) {
    Out.Line("LWMHeader   label   word");
    Out.Line("    LWMFileHeader ", Version, ", LWMIndexStart, LWMStart, LWMEnd");
    Out.Line("LWMStart    label   word");
    Out.Line("    datamark_0  label   word");
    Long Mark = 0;
    for (const Lwm_Area& A : Areas) {
        ++Mark;
        if (A.Has_Data != 0) Write_Area(Mark);
        Out.Line("    datamark_", Mark, "  label   word");
    }
    Out.Line(";-----------------------------------------");
    for (const Lwm_Area& A : Areas)
        Out.Line("    Cell_", A.AreaLon, "_", A.AreaLat, "    EQU    LWMCellID 0,0,",
                 A.Has_Data != 0 ? Fill_Nothing : A.Fill, ",", A.AreaLon, ",", A.AreaLat);
    Write_Index(Out, Areas);
}

void Lwm_List_Line(Source_File& Out, Long Nb, Int Mask, const Cell_Pos& Cell) {
    if (Nb <= Max_Short_List)
        Out.Line("        LWMDataAreaDrawPolygons ", Nb, ",", Mask, ",1,", Cell.CellLon, ",",
                 Cell.CellLat);
    else
        Out.Line("        LWMDataAreaDrawPolygonsEx ", Max_Short_List + 1, ",", Mask, ",1,",
                 Cell.CellLon, ",", Cell.CellLat, ",", Nb - (Max_Short_List + 1));
}
