// tests/gen/gen_test.h - the fixture of the generator's tests.
#pragma once

#include <cmath>
#include <numbers>
#include <string>
#include <vector>

#include "core/attr_kinds.h"
#include "core/model_ops.h"
#include "gen/driver.h"
#include "grid/map_limits.h"
#include "grid/terrain_grid.h"
#include "shapes/poly/work_lists.h"
#include "support/environment.h"
#include "support/program_test.h"
#include "support/stand_in.h"

/// An open, empty project whose outputs go to the test's directory, at a fixed time. Outside
/// tools are taken as run unless a test says otherwise.
class Gen_Test : public Program_Test {
protected:
    Gen_Test() {
        Gen_Install();
        Projet_Open = 1;
        Set_Outputs();
        Host_Of_Test.Tool = [](std::string_view) { return true; };
    }
    ~Gen_Test() override { Work_Lists_Reset(); }

    void Set_Outputs() const {
        NameBgl = Dir.Path("Out.bgl");
        NameBglExcl = Dir.Path("Excl.bgl");
        Dir_LCWC = Dir.Path("Classes");
        Dir_Raw = Dir.Path("Raw");
    }

    /// The text of a source in App_Path.
    std::string Source(const std::string& Name) const { return Dir.Read("App/" + Name); }
    bool Has_Source(const std::string& Name) const { return Dir.Has("App/" + Name); }

    /// Text with the directory of this test as "HOME", so that it is the same in every run.
    std::string Without_Dir(std::string Text) const {
        for (std::size_t At; (At = Text.find(Dir.Path())) != std::string::npos;)
            Text.replace(At, Dir.Path().size(), "HOME");
        // What people are shown has the system's divider.
        const std::string Here = Dir.Native().generic_string();
        for (std::size_t At = 0; (At = Text.find(Here, At)) != std::string::npos;) {
            Text.replace(At, Here.size(), "HOME");
            for (; At < Text.size() && Text[At] != ' ' && Text[At] != '\n'; ++At)
                if (Text[At] == '/') Text[At] = '\\';
        }
        return Text;
    }

    /// Puts a stand-in for an outside tool in App_Path, and lets tools run for real.
    void Put_Tool(const std::string& Name, std::string_view Plan) {
        Put_Stand_In(Dir, "App/" + Name, Plan);
        Host_Of_Test.Tool = nullptr;
    }

    /// A map of Cells by Cells Cells of 255 pixels, a pixel a unit of the Cell scale, whose pixel
    /// (0, 0) is the north-west corner of Area (100, 50).
    static void Make_Map(Long Cells) {
        LatPtNW = Area_Corner(100, 50).Lat;
        LonPtNW = Area_Corner(100, 50).Lon;
        LatPtSE = LatPtNW - Cells * Cell_StepLat;
        LonPtSE = LonPtNW + Cells * Cell_StepLon;
        XPtNW = YPtNW = 0;
        XPtSE = YPtSE = Cells * 255;
        Map_Width = Map_Height = XPtSE + 1;
        Compute_Map_Limits(The_Calibration, Map_Width, Map_Height);
    }

    static void Draw(const std::vector<Pix>& Outline, const Attr& A) {
        const Long I = Obj_Add(A, Outline[0].X, Outline[0].Y);
        for (std::size_t K = 1; K < Outline.size(); ++K) Pt_Append(I, Outline[K].X, Outline[K].Y);
    }

private:
    const Environment_Scope Fixed_Time{"SOURCE_DATE_EPOCH", "1065268800"};
};
