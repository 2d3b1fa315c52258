// tests/simlink/win32/test_window_messages.cpp - real messages and atoms, from another program.
#include <windows.h>

#include "simlink/flight.h"
#include "simlink/fsconnect.h"
#include "support/program_test.h"

namespace {

class Window_Messages : public Program_Test {
protected:
    void Start(const std::string& Track) {
        std::string Cmd_Line = std::string("\"") + STAND_IN_SIMULATOR + "\" \"" + Track + "\"";
        STARTUPINFOA Info{};
        Info.cb = sizeof Info;
        ASSERT_TRUE(CreateProcessA(nullptr, Cmd_Line.data(), nullptr, nullptr, FALSE, 0, nullptr,
                                   nullptr, &Info, &Simulator));
    }
    void End() {
        TerminateProcess(Simulator.hProcess, 0);
        WaitForSingleObject(Simulator.hProcess, INFINITE);
        CloseHandle(Simulator.hThread);
        CloseHandle(Simulator.hProcess);
    }

    PROCESS_INFORMATION Simulator{};
};

TEST_F(Window_Messages, ReachASimulator) {
    EXPECT_FALSE(Fsc_Available());
    Fly_Twice(
        Dir, [this](const std::string& Track) { Start(Track); }, [this] { End(); });
}

}  // namespace
