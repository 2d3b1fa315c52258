// tests/core/project_test.h - the fixture of tests of the project file.
#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "core/model.h"
#include "support/program_test.h"

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

class Project_Test : public Program_Test {
protected:
    Project_Test();
    /// Reads Text as the project p.LWM of the test's directory; false when it can't be read.
    bool Open(std::string_view Text);
    /// The project saved there, without the first two lines, which hold date and path.
    std::string Saved();
    /// The present project.
    static Project_Copy Copy();
    /// The whole file with New in the place of the first Old, which must be there.
    std::string With(std::string_view Old, std::string_view New);

    /// A project file with one record of each kind, whose values all differ so that no two fields
    /// can be exchanged.
    std::string Whole;
};
