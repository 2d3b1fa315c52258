// tests/core/project_maker.h - projects for the tests of the project file.
#pragma once

#include <random>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "core/model.h"

/// What a project file must keep of a project: everything but Nom_Projet, the places of points
/// in their pool, and deleted records.
struct Project_Copy {
    struct Drawn {
        Long Num;
        ::Attr Attr;
        std::vector<std::pair<Double, Double>> Pts;  // along the chain
        bool operator==(const Drawn&) const = default;
    };

    Project_Head Head;
    Calibration Cal;
    std::vector<Drawn> Objs;
    std::vector<Area> Areas;
    std::vector<Lod8> Lod8s;
    std::vector<Excl> Excls;
    std::vector<LC_Cell> LCs;
    std::vector<WC_Cell> WCs;
    std::vector<Ima> Imas;
    std::vector<PtGrid> PtGrids;

    bool operator==(const Project_Copy&) const = default;
};

/// The present project.
Project_Copy Copy_Of_Project();

/// Makes a project of random records, some of them deleted, with values of all sizes that the
/// text of a number can hold.
void Make_Random_Project(std::mt19937_64& Source);

/// The lines of a project file behind the first two, which hold date and path.
std::string_view Body_Of(std::string_view File);

/// Text with each line end as CR LF.
std::string With_Cr_Lf(std::string_view Text);

/// A project file with one record of each kind, whose values all differ so that no two fields can
/// be exchanged.
std::string Whole_File();

/// Text with New in the place of the first Old, which must be there.
std::string With(std::string Text, std::string_view Old, std::string_view New);
