// core/model.h - the project: what the designer drew, and how the map lies on the globe.
//
// There is one project in memory. Its records stand in global tables with rows from 1, its
// scalars are globals; whoever edits the project edits these, the project file is a dump of
// them, and the generators only read them. model_ops.h has the changes that touch more than
// one value.
//
// Units: X and Y are pixels of the map image, X east and Y south, fractions allowed; latitudes
// and longitudes are degrees, north and east positive; altitudes are metres unless told
// otherwise. Flags stored as Int are 0 or 1.
#pragma once

#include <array>
#include <string>

#include "core/numbers.h"
#include "core/project_table.h"

/// Stands for "no altitude" in every field Alti.
inline constexpr Double No_Alti = -9999.0;

/// What an object is. Defaults are those of a new object.
struct Attr {
    Int Attrib = 0;           // LWM polygon: 0 water, 1 land
    Double Alti = No_Alti;    // metres
    Int SurfShore = 0;        // a Surf_Kind (attr_kinds.h)
    Int Largeur = 64;         // width of a line, metres
    Int LineType = 1024;      // line kind, the code of a row of OwnLines4.txt
    Int LandOnRight = 0;      // land lies right of the drawing direction
    Int FermerLine = 1;       // the two ends of the line are joined
    Byte Layer = 32;          // layer of a line or shore
    std::string Text_Rt;      // free text
    std::string Imbrication;  // nesting text of a polygon
    Double Alt_Coast = 0.0;   // altitude of a coastline, metres
    Int Link_Ima = 0;         // Num of the linked Ima, 0 none; always 0 when SurfShore is above 1
    Int LWM_VTP2 = 0;         // technique of a polygon, a Poly_Technique
    Int LandClass = 0;        // 0 class LC, 1 the textures named below
    Int LC = 135;             // class number of LC.txt
    std::array<std::string, 6> Texture_Name;
    Int Layer_Vtp2 = 4;        // layer of a VTP polygon
    Int Drive_Right = 1;       // night lines: drive on the right
    Int Line_Night = 0;        // the line has night lights
    Int LayerScasm = 16;       // layer of the night lines
    Int Vtp1_Line = 0;         // VTP1 line (fan)
    Int Effil_Deb = 0;         // thin the line at its start
    Int Effil_Fin = 0;         // thin the line at its end
    Int VTP1_SpecNor = 1;      // VTP1 polygon, a Vtp1_Kind
    Int Flip_VTP1Texture = 1;  // flip the VTP1 texture

    bool operator==(const Attr&) const = default;
};

/// One drawn thing: its attributes and a chain of points in Tab_Pt. Walkers stop at Last_Pt.
struct Obj {
    Long Num = 0;  // never given twice in a project
    ::Attr Attr;
    Long First_Pt = 0;
    Long Last_Pt = 0;
    Long Nb_Pts = 0;  // points on the chain; 0 makes First_Pt and Last_Pt meaningless
};

/// A vertex of an object's chain.
struct Pt {
    Long Prev = 0;  // row of the point before it in the chain, 0 at the first
    Long Next = 0;  // row of the point behind it, 0 at the last
    Double X = 0.0;
    Double Y = 0.0;
};

/// A square of the LOD13 grid (a Cell) inside a square of the LOD8 grid (an Area). Areas
/// count from -180 degrees east and from +90 degrees south, Cells from the north-west corner
/// of their Area.
struct Cell_Pos {
    Int AreaLon = 0;  // 0 to 767
    Int AreaLat = 0;  // 0 to 511
    Int CellLon = 0;  // 0 to 31
    Int CellLat = 0;  // 0 to 31

    bool operator==(const Cell_Pos&) const = default;
};

inline constexpr Int Nb_AreaLon = 768;
inline constexpr Int Nb_AreaLat = 512;
inline constexpr Int Nb_Cell_In_Area = 32;

/// Fill of one Cell, with the defaults of a new record. At most one record a Cell.
struct Area : Cell_Pos {
    std::string Texte;
    Int Fill1x1 = 1;  // fill the whole Cell
    Byte Attrib = 0;  // 0 water (flatten), 1 land, 2 flatten
    Double Alti = No_Alti;
    Int InvertMask = 0;
    Int InvertMaskValue = 2;  // 0 LOD13 water, 1 LOD13 land, 2 polygon
    Int Custom = 0;           // textures are chosen for this Cell
    Int LandClass = 1;        // 0 class LC, 1 the textures named below
    Int LC = 253;
    std::array<std::string, 6> Texture_Name;
    Int Layer = 7;

    bool operator==(const Area&) const = default;
};

/// Fill of one Area. At most one record an Area.
struct Lod8 {
    Int AreaLon = 0;
    Int AreaLat = 0;
    Byte Attrib = 0;  // as in Area
    Double Alti = No_Alti;

    bool operator==(const Lod8&) const = default;
};

inline constexpr Int Nb_Chk_Excl = 101;

/// Exclusions of one Cell: a flag for each class 0 to 100. At most one record a Cell.
struct Excl : Cell_Pos {
    std::array<Byte, Nb_Chk_Excl> Chk_Excl{};

    bool operator==(const Excl&) const = default;
};

/// Land class of one Cell. At most one record a Cell.
struct LC_Cell : Cell_Pos {
    Byte Num = 0;

    bool operator==(const LC_Cell&) const = default;
};

/// Water class of one Cell. At most one record a Cell.
struct WC_Cell : Cell_Pos {
    Byte Num = 1;

    bool operator==(const WC_Cell&) const = default;
};

/// A VTP1 texture placed as a rectangle on the map. Deleted records stay, with Active 0.
struct Ima {
    Int Active = 0;
    Int Num = 0;
    std::string DirFic;  // path of the bitmap shown
    Int Ima_Width = 0;   // pixels of the picture
    Int Ima_Height = 0;
    Double X1 = 0.0;                          // edges of the rectangle in map pixels: west,
    Double Y1 = 0.0;                          // north,
    Double X2 = 0.0;                          // east,
    Double Y2 = 0.0;                          // south
    std::array<std::string, 5> Texture_Name;  // one a season

    bool operator==(const Ima&) const = default;
};

/// An altitude sample for the re-mesh. Deleted records stay, with Active 0.
struct PtGrid {
    Byte Active = 0;
    Double X = 0.0;
    Double Y = 0.0;
    Single Alt = 0.0F;  // in the unit of Meter_Feet

    bool operator==(const PtGrid&) const = default;
};

inline constinit Project_Table<Obj> Tab_Obj{10, 5};  // row 1 is reserved; objects stand from row 2
inline constinit Project_Table<Pt> Tab_Pt{5, 20};    // a pool: deleted points leave holes
inline constinit Project_Table<Area> Tab_Area{10, 5};
inline constinit Project_Table<Lod8> Tab_Lod8{10, 2};
inline constinit Project_Table<Excl> Tab_Excl{5, 5};
inline constinit Project_Table<LC_Cell> Tab_LC{1, 1};
inline constinit Project_Table<WC_Cell> Tab_WC{1, 1};
inline constinit Project_Table<Ima> Tab_Ima{2, 3};
inline constinit Project_Table<PtGrid> Tab_PtGrid{50, 20};

inline constinit const Long& Nb_Obj = Tab_Obj.Nb();
inline constinit const Long& Nb_Pt = Tab_Pt.Nb();
inline constinit const Long& Nb_Area = Tab_Area.Nb();
inline constinit const Long& Nb_Lod8 = Tab_Lod8.Nb();
inline constinit const Long& Nb_Excl = Tab_Excl.Nb();
inline constinit const Long& Nb_LC = Tab_LC.Nb();
inline constinit const Long& Nb_WC = Tab_WC.Nb();
inline constinit const Long& Nb_Ima = Tab_Ima.Nb();
inline constinit const Long& Nb_PtGrid = Tab_PtGrid.Nb();

inline constinit const Long& Max_Obj = Tab_Obj.Max();
inline constinit const Long& Max_Pt = Tab_Pt.Max();
inline constinit const Long& Max_Area = Tab_Area.Max();
inline constinit const Long& Max_Lod8 = Tab_Lod8.Max();
inline constinit const Long& Max_Excl = Tab_Excl.Max();
inline constinit const Long& Max_LC = Tab_LC.Max();
inline constinit const Long& Max_WC = Tab_WC.Max();
inline constinit const Long& Max_Ima = Tab_Ima.Max();
inline constinit const Long& Max_PtGrid = Tab_PtGrid.Max();

/// The row of Tab_Obj where the first real object stands.
inline constexpr Long First_Obj = 2;

/// The scalars of the project, with the values of a new one. The program uses them by the
/// names below, which refer to the one Project_Head there is.
struct Project_Head {
    std::string Nom_Projet;   // path of the project file
    std::string Carte;        // path of the map bitmap
    std::string NameBgl;      // path of the main output, ending in .bgl
    std::string NameBglExcl;  // path of the exclusion output
    Int Dir_Raw_On = 0;       // use the general .raw files of Dir_Raw
    std::string Dir_Raw;
    Int ReUse_Raw = 0;     // update the general .raw files
    std::string Dir_LCWC;  // where land-class and water-class outputs go
    Long Map_Width = 0;    // pixels
    Long Map_Height = 0;
    Int Meter_Feet = 0;       // unit of the PtGrid altitudes: 0 metres, 1 feet
    Single Delta_Alt = 0.0F;  // added to every PtGrid altitude
    Int FS_CFS = 0;           // a Simulator
    Long Last_Num_Obj = 0;    // last object number given
    Int LodMesh = 2;          // 0 Lod12, 1 Lod11, 2 Lod10, 3 Lod9, 4 Lod8
    Int Mesh_Done = 0;        // the re-mesh dialog was accepted
    Int Nb_Tiles = 0;         // division of the map into tiles
    Int Nb_Tile_Rows = 0;
    Int Nb_Tile_Cols = 0;

    bool operator==(const Project_Head&) const = default;
};

/// The tie of the map to the globe, and the limits that follow from it.
struct Calibration {
    // The two calibration points: degrees, and pixel column and row.
    Double LatPtNW = 0.0, LonPtNW = 0.0;
    Double LatPtSE = 0.0, LonPtSE = 0.0;
    Long XPtNW = 0, YPtNW = 0;
    Long XPtSE = 0, YPtSE = 0;
    Int CadNW_Done = 0, CadSE_Done = 0;  // the point has been placed
    // Degrees of the map's top left and bottom right pixels, and their Cells.
    Double LatMapNW = 0.0, LonMapNW = 0.0;
    Double LatMapSE = 0.0, LonMapSE = 0.0;
    Int AreaLatMapNW = 0, CellLatMapNW = 0, AreaLonMapNW = 0, CellLonMapNW = 0;
    Int AreaLatMapSE = 0, CellLatMapSE = 0, AreaLonMapSE = 0, CellLonMapSE = 0;
    // The work grid: the map's Cells and one more all round. Its outer edges in degrees, and
    // in pixels from the top left pixel (0 or negative in the north-west).
    Int AreaLatGridNW = 0, CellLatGridNW = 0, AreaLonGridNW = 0, CellLonGridNW = 0;
    Int AreaLatGridSE = 0, CellLatGridSE = 0, AreaLonGridSE = 0, CellLonGridSE = 0;
    Double LatGridNW = 0.0, LonGridNW = 0.0, LatGridSE = 0.0, LonGridSE = 0.0;
    Double XGridNW = 0.0, YGridNW = 0.0, XGridSE = 0.0, YGridSE = 0.0;

    bool operator==(const Calibration&) const = default;
};

inline Project_Head The_Head;
inline Calibration The_Calibration;

/// The copies that the dialogs edit: a dialog fills one, and its Ok writes it to the project.
struct Edit_Copies {
    ::Attr Cur_Attr;   // what the object dialog edits
    ::Attr Prev_Attr;  // its hand-over record: filled by the caller, read back after Ok
    Area Cur_Area;
    Lod8 Cur_Lod8;
    Excl Cur_Excl;
    LC_Cell Cur_LC;
    WC_Cell Cur_WC;
    Ima Cur_Ima;
    Single Last_Alt_Pt = 0.0F;  // altitude last entered for a PtGrid, in the unit of Meter_Feet
    Long Sel_Alt_Pt = 0;        // the PtGrid under the mouse or entered last, 0 none
    Int Dialog_Up = 0;          // the altitude dialog is on screen
};

inline Edit_Copies The_Edits;

inline Attr& Cur_Attr = The_Edits.Cur_Attr;
inline Attr& Prev_Attr = The_Edits.Prev_Attr;
inline Area& Cur_Area = The_Edits.Cur_Area;
inline Lod8& Cur_Lod8 = The_Edits.Cur_Lod8;
inline Excl& Cur_Excl = The_Edits.Cur_Excl;
inline LC_Cell& Cur_LC = The_Edits.Cur_LC;
inline WC_Cell& Cur_WC = The_Edits.Cur_WC;
inline Ima& Cur_Ima = The_Edits.Cur_Ima;
inline Single& Last_Alt_Pt = The_Edits.Last_Alt_Pt;
inline Long& Sel_Alt_Pt = The_Edits.Sel_Alt_Pt;
inline Int& Dialog_Up = The_Edits.Dialog_Up;

inline std::string& Nom_Projet = The_Head.Nom_Projet;
inline std::string& Carte = The_Head.Carte;
inline std::string& NameBgl = The_Head.NameBgl;
inline std::string& NameBglExcl = The_Head.NameBglExcl;
inline Int& Dir_Raw_On = The_Head.Dir_Raw_On;
inline std::string& Dir_Raw = The_Head.Dir_Raw;
inline Int& ReUse_Raw = The_Head.ReUse_Raw;
inline std::string& Dir_LCWC = The_Head.Dir_LCWC;
inline Long& Map_Width = The_Head.Map_Width;
inline Long& Map_Height = The_Head.Map_Height;
inline Int& Meter_Feet = The_Head.Meter_Feet;
inline Single& Delta_Alt = The_Head.Delta_Alt;
inline Int& FS_CFS = The_Head.FS_CFS;
inline Long& Last_Num_Obj = The_Head.Last_Num_Obj;
inline Int& LodMesh = The_Head.LodMesh;
inline Int& Mesh_Done = The_Head.Mesh_Done;
inline Int& Nb_Tiles = The_Head.Nb_Tiles;
inline Int& Nb_Tile_Rows = The_Head.Nb_Tile_Rows;
inline Int& Nb_Tile_Cols = The_Head.Nb_Tile_Cols;

inline Double& LatPtNW = The_Calibration.LatPtNW;
inline Double& LonPtNW = The_Calibration.LonPtNW;
inline Double& LatPtSE = The_Calibration.LatPtSE;
inline Double& LonPtSE = The_Calibration.LonPtSE;
inline Long& XPtNW = The_Calibration.XPtNW;
inline Long& YPtNW = The_Calibration.YPtNW;
inline Long& XPtSE = The_Calibration.XPtSE;
inline Long& YPtSE = The_Calibration.YPtSE;
inline Int& CadNW_Done = The_Calibration.CadNW_Done;
inline Int& CadSE_Done = The_Calibration.CadSE_Done;
inline Double& LatMapNW = The_Calibration.LatMapNW;
inline Double& LonMapNW = The_Calibration.LonMapNW;
inline Double& LatMapSE = The_Calibration.LatMapSE;
inline Double& LonMapSE = The_Calibration.LonMapSE;
inline Int& AreaLatMapNW = The_Calibration.AreaLatMapNW;
inline Int& CellLatMapNW = The_Calibration.CellLatMapNW;
inline Int& AreaLonMapNW = The_Calibration.AreaLonMapNW;
inline Int& CellLonMapNW = The_Calibration.CellLonMapNW;
inline Int& AreaLatMapSE = The_Calibration.AreaLatMapSE;
inline Int& CellLatMapSE = The_Calibration.CellLatMapSE;
inline Int& AreaLonMapSE = The_Calibration.AreaLonMapSE;
inline Int& CellLonMapSE = The_Calibration.CellLonMapSE;
inline Int& AreaLatGridNW = The_Calibration.AreaLatGridNW;
inline Int& CellLatGridNW = The_Calibration.CellLatGridNW;
inline Int& AreaLonGridNW = The_Calibration.AreaLonGridNW;
inline Int& CellLonGridNW = The_Calibration.CellLonGridNW;
inline Int& AreaLatGridSE = The_Calibration.AreaLatGridSE;
inline Int& CellLatGridSE = The_Calibration.CellLatGridSE;
inline Int& AreaLonGridSE = The_Calibration.AreaLonGridSE;
inline Int& CellLonGridSE = The_Calibration.CellLonGridSE;
inline Double& LatGridNW = The_Calibration.LatGridNW;
inline Double& LonGridNW = The_Calibration.LonGridNW;
inline Double& LatGridSE = The_Calibration.LatGridSE;
inline Double& LonGridSE = The_Calibration.LonGridSE;
inline Double& XGridNW = The_Calibration.XGridNW;
inline Double& YGridNW = The_Calibration.YGridNW;
inline Double& XGridSE = The_Calibration.XGridSE;
inline Double& YGridSE = The_Calibration.YGridSE;
