// tests/gen/gen_test.h - the fixture of the generator's tests.
#pragma once

#include <string>

#include "core/model_ops.h"
#include "gen/driver.h"
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
        NameBgl = Dir.Path("Out.bgl");
        NameBglExcl = Dir.Path("Excl.bgl");
        Host_Of_Test.Tool = [](std::string_view) { return true; };
    }

    /// The text of a source in App_Path.
    std::string Source(const std::string& Name) const { return Dir.Read("App/" + Name); }
    bool Has_Source(const std::string& Name) const { return Dir.Has("App/" + Name); }

    /// Puts a stand-in for an outside tool in App_Path, and lets tools run for real.
    void Put_Tool(const std::string& Name, std::string_view Plan) {
        Put_Stand_In(Dir, "App/" + Name, Plan);
        Host_Of_Test.Tool = nullptr;
    }

private:
    const Environment_Scope Fixed_Time{"SOURCE_DATE_EPOCH", "1065268800"};
};
