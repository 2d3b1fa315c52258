// tests/platform/test_file_writer.cpp - saves that end half way.
#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>

#include "platform/files.h"
#include "support/environment.h"
#include "support/run_again.h"
#include "support/temp_dir.h"

namespace {

const std::string Old_Text(50'000, 'o');
const std::string New_Text(300'000, 'n');

bool Save(const std::string& Path) {
    File_Writer Out(Path, File_Writer::Mode::Safe);
    for (std::size_t I = 0; I < New_Text.size(); I += 1000)
        Out.Put(std::string_view(New_Text).substr(I, 1000));
    return Out.Commit();
}

}  // namespace

// Not a test: a process that saves and dies before the step of that number, counted from 1. It
// tells the kinds of the steps, and "." when the save came to its end.
TEST(Safe_Save, DISABLED_Die) {
    std::ofstream Tell(Path_From_Utf8(Told("TERRAFOLD_TELL")));
    int Left = std::stoi(Told("TERRAFOLD_STEP"));
    On_Save_Step = [&](Save_Step Step) {
        Tell << static_cast<int>(Step) << std::flush;
        if (--Left == 0) std::_Exit(0);
    };
    if (Save(Told("TERRAFOLD_SAVE"))) Tell << '.';
}

TEST(Safe_Save, KilledAtAnyStepLeavesAWholeFile) {
    std::string Steps;
    for (int Last = 1; !Steps.ends_with('.'); ++Last) {
        ASSERT_LT(Last, 100);
        const Temp_Dir Dir, Notes;
        Dir.Write("p.LWM", Old_Text);
        const Environment_Scope Tell("TERRAFOLD_TELL", Notes.Native("told").string());
        const Environment_Scope Step("TERRAFOLD_STEP", std::to_string(Last));
        const Environment_Scope Path("TERRAFOLD_SAVE", Dir.Path("p.LWM"));
        Run_Again("Safe_Save.DISABLED_Die");
        Steps = Notes.Read("told");
        const char Last_Step = Steps.empty() ? '?' : Steps.back();
        const bool Renamed =
            Last_Step == '.' || Last_Step - '0' == static_cast<int>(Save_Step::Sync_Dir);
        EXPECT_TRUE(Dir.Read("p.LWM") == (Renamed ? New_Text : Old_Text)) << Steps;
        EXPECT_TRUE(Save(Dir.Path("p.LWM")));
        EXPECT_EQ(Dir_Files(Dir.Path()), std::vector<std::string>{"p.LWM"}) << "nothing is left";
    }
    EXPECT_EQ(Steps, "011111234.") << "create, five writes, sync, rename, sync of the directory";
}
