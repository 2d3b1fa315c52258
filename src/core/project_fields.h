// core/project_fields.h - the numbers of each line of project and reference files, in order.
//
// Each routine hands every field of one line to Field, a routine that takes a reference to any
// number type. Reader and writer share them, so a field has one place.
#pragma once

#include "core/model.h"

namespace project_fields {

template <typename Head, typename F>
void Line_0010(Head& C, F&& Field) {
    Field(C.LatMapNW), Field(C.LonMapNW), Field(C.LatMapSE), Field(C.LonMapSE);
    Field(C.LatPtNW), Field(C.LonPtNW), Field(C.LatPtSE), Field(C.LonPtSE);
    Field(C.LatGridNW), Field(C.LonGridNW), Field(C.LatGridSE), Field(C.LonGridSE);
}

/// Rows and columns of Areas and of Cells, which have limits of their own: Areas go to
/// Lat_Area and Lon_Area, Cells to Cell.
template <typename Head, typename Lat, typename Lon, typename Cell>
void Line_0040(Head& C, Lat&& Lat_Area, Lon&& Lon_Area, Cell&& In_Area) {
    Lat_Area(C.AreaLatMapNW), Lon_Area(C.AreaLonMapNW);
    Lat_Area(C.AreaLatMapSE), Lon_Area(C.AreaLonMapSE);
    In_Area(C.CellLatMapNW), In_Area(C.CellLonMapNW);
    In_Area(C.CellLatMapSE), In_Area(C.CellLonMapSE);
    In_Area(C.CellLatGridNW), Lat_Area(C.AreaLatGridNW);
    In_Area(C.CellLonGridNW), Lon_Area(C.AreaLonGridNW);
    In_Area(C.CellLatGridSE), Lat_Area(C.AreaLatGridSE);
    In_Area(C.CellLonGridSE), Lon_Area(C.AreaLonGridSE);
}

template <typename Head, typename F>
void Line_0060(Head& C, F&& Field) {
    Field(C.XPtNW), Field(C.YPtNW), Field(C.XPtSE), Field(C.YPtSE);
    Field(C.XGridNW), Field(C.YGridNW), Field(C.XGridSE), Field(C.YGridSE);
}

/// The attributes of an object but its strings, as far as files of Version have them.
template <typename R, typename F>
void Attr_Line(R& A, F&& Field, Double Version = 5.0) {
    Field(A.Alti), Field(A.Attrib), Field(A.LandOnRight), Field(A.LineType), Field(A.Largeur);
    Field(A.SurfShore), Field(A.FermerLine), Field(A.Layer), Field(A.Link_Ima);
    Field(A.LWM_VTP2), Field(A.LandClass), Field(A.LC), Field(A.Layer_Vtp2);
    if (Version < 2.2) return;
    Field(A.Alt_Coast);
    if (Version < 3.0) return;
    Field(A.Line_Night), Field(A.Drive_Right), Field(A.LayerScasm);
    if (Version < 4.0) return;
    Field(A.Vtp1_Line), Field(A.Effil_Deb), Field(A.Effil_Fin);
    Field(A.VTP1_SpecNor), Field(A.Flip_VTP1Texture);
}

template <typename O, typename F>
void Obj_Line(O& Object, F&& Field) {
    Field(Object.Num), Field(Object.Nb_Pts);
    Attr_Line(Object.Attr, Field);
}

template <typename R, typename F>
void Area_Line(R& A, F&& Field) {
    Field(A.Alti), Field(A.Attrib);
    Field(A.CellLon), Field(A.CellLat), Field(A.AreaLon), Field(A.AreaLat);
    Field(A.Fill1x1), Field(A.InvertMask), Field(A.InvertMaskValue);
    Field(A.Custom), Field(A.LandClass), Field(A.LC), Field(A.Layer);
}

template <typename R, typename F>
void Cell_Line(R& Cell, F&& Field) {
    Field(Cell.AreaLon), Field(Cell.AreaLat), Field(Cell.CellLon), Field(Cell.CellLat);
}

template <typename R, typename F>
void Class_Line(R& Cell, F&& Field) {
    Cell_Line(Cell, Field);
    Field(Cell.Num);
}

template <typename R, typename F>
void Lod8_Line(R& L, F&& Field) {
    Field(L.Alti), Field(L.Attrib), Field(L.AreaLon), Field(L.AreaLat);
}

template <typename R, typename F>
void Ima_Line(R& M, F&& Field) {
    Field(M.Num);
    Field(M.X1), Field(M.Y1), Field(M.X2), Field(M.Y2);
    Field(M.Ima_Width), Field(M.Ima_Height);
}

template <typename R, typename F>
void PtGrid_Line(R& P, F&& Field) {
    Field(P.Alt), Field(P.X), Field(P.Y);
}

}  // namespace project_fields
