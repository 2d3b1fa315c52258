// core/attr_kinds.h - names for the numbers of the model that have a meaning, and what follows
// from them.
//
// The model keeps them as numbers, since a file may hold any; the names convert to numbers.
#pragma once

#include "core/model.h"

/// Attr::SurfShore. What is not a polygon without a shore is drawn as a line, too.
enum Surf_Kind : Int { Surf_Polygon = 0, Surf_Polygon_Shore = 1, Surf_Line = 2, Surf_Coast = 3 };

/// Attr::LWM_VTP2, the technique of a polygon.
enum Poly_Technique : Int { Technique_LWM = 0, Technique_VTP2 = 1, Technique_VTP1 = 2 };

/// Attr::VTP1_SpecNor of a VTP1 polygon: special ones show the texture of the linked Ima.
enum Vtp1_Kind : Int { Vtp1_Special = 0, Vtp1_Normal = 1 };

/// FS_CFS, the simulator that a project is for.
enum Simulator : Int {
    For_FS = 0,   // Flight Simulator
    For_CFS = 1,  // Combat Flight Simulator 2
};

/// Meter_Feet, the unit of the samples of the re-mesh.
enum Alti_Unit : Int { In_Metres = 0, In_Feet = 1 };

inline bool Is_Polygon(const Attr& A) {
    return A.SurfShore == Surf_Polygon || A.SurfShore == Surf_Polygon_Shore;
}
inline bool Is_Coast(const Attr& A) {
    return A.SurfShore == Surf_Coast;
}
/// A line, a coastline, or the shore of a polygon.
inline bool Has_Line(const Attr& A) {
    return A.SurfShore != Surf_Polygon;
}
/// Beyond the polygons: a line or a coastline, which is never linked to a texture.
inline bool Is_Open_Line(const Attr& A) {
    return A.SurfShore >= Surf_Line;
}
/// A polygon that shows the texture it is linked to.
inline bool Is_Special_Vtp1(const Attr& A) {
    return !Is_Open_Line(A) && A.LWM_VTP2 == Technique_VTP1 && A.VTP1_SpecNor == Vtp1_Special;
}
