// tests/qt/program_window_test.h - the fixture of tests of the whole program.
#pragma once

#include <filesystem>
#include <memory>
#include <string>

#include "qt/form_widget.h"
#include "qt/form_window.h"
#include "qt/program_window.h"
#include "qt/qt_test.h"
#include "qt/window_host.h"
#include "support/environment.h"
#include "support/program_test.h"

/// Begins with a home in which the program has been before, and the example in the test's
/// directory; Start makes the window.
class Program_Window_Test : public Program_Test {
protected:
    Program_Window_Test() {
        for (const auto& File : std::filesystem::directory_iterator(TEST_SOURCE_DIR "/resource"))
            if (File.is_regular_file())
                std::filesystem::copy_file(File,
                                           Dir.Native("App/Resource") / File.path().filename());
        for (const char* Name : {"Island.LWM", "Island.bmp"})
            std::filesystem::copy_file(std::filesystem::path(EXAMPLE_DIR) / Name, Dir.Native(Name));
        Settings("1");
    }
    ~Program_Window_Test() override { P.reset(); }

    void Settings(const std::string& Confirmed) {
        Dir.Write("App/Resource/Terrafold.Ini",
                  "[Terrafold]\r\nLanguage=US\r\nFl1Fois=" + Confirmed + "\r\n");
    }
    bool Start(const std::string& Command_Line = {}) {
        P = std::make_unique<Program_Window>(Host);
        const bool Runs = P->Start(Command_Line, Dir.Path("App")) == Start_Outcome::Started;
        W = &P->Window();
        Turn();
        return Runs;
    }
    void Open_Example() { ASSERT_TRUE(Start('"' + Dir.Path("Island.LWM") + '"')); }

    Window_Host Host;
    Host_Scope Above{Host};
    std::unique_ptr<Program_Window> P;
    Form_Window* W = nullptr;

private:
    Environment_Scope Run_Dir_{"XDG_RUNTIME_DIR", Dir.Native().string()};
    Environment_Scope Named_{"TERRAFOLD_FSDIR"};
    Environment_Scope Wine_{"WINEPREFIX", Dir.Native("no wine").string()};
};
