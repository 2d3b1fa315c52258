// ui/dialogs/project_draft.h - the working copies of a project's values, from which the dialog of
// parameters and those of the calibration make a project.
#pragma once

#include <string>

#include "core/model.h"
#include "core/resets.h"

/// Nothing of it reaches the model before the Ok of Frm_PPro.
struct Project_Draft {
    std::string New_Nom_Projet, New_Carte;
    std::string New_NameBgl, New_NameBglExcl;
    std::string New_Dir_LCWC, New_Dir_Raw;
    Int New_Dir_Raw_On = 0, New_ReUse_Raw = 0;
    Int New_Meter_Feet = 0;
    Single New_Delta_Alt = 0.0F;
    Int New_FS_CFS = 0;
    Calibration New_Cal;  // New_LatPtNW and its kin, the pixels, the Done flags
    Long New_Map_Width = 0, New_Map_Height = 0;  // pixels
    Int Nb_Tiles_New = 0, Nb_Tile_Rows_New = 0, Nb_Tile_Cols_New = 0;
    Int Step_Projet_Done = 0, Step_Carte_Done = 0;
};

inline Project_Draft The_Draft;
inline const bool Draft_Is_Reset = At_Reset([] { The_Draft = {}; });

/// The candidate tiling of the map of the draft.
void Draft_Tiling();
