// tests/qt/posix/test_slow_tool.cpp - the window while an outside tool runs, which waits at a pipe.
#include <sys/stat.h>

#include "core/model.h"
#include "core/program.h"
#include "qt/busy.h"
#include "qt/program_window_test.h"
#include "ui/canvas/view.h"

TEST_F(Program_Window_Test, AToolRunsWhileTheWindowPaintsAndTakesNoInput) {
    Open_Example();
    ASSERT_EQ(mkfifo(Dir.Native("gate").c_str(), 0600), 0);
    bool Alive = false;
    QMetaObject::invokeMethod(
        W,
        [&] {
            Alive = Busy::Is_On();
            EXPECT_FALSE(W->close());
            QTest::mouseClick(&Find<QWidget>(*W, "Cmd_ZPlus"), Qt::LeftButton);
            Dir.Write("gate", "go");  // the tool reads it and ends
        },
        Qt::QueuedConnection);
    EXPECT_TRUE(Host.Run_Tool("/usr/bin/cmp -s \"" + Dir.Path("gate") + "\" /dev/null", 0));
    EXPECT_TRUE(Alive);
    EXPECT_EQ(Zoom, 1.0);
    EXPECT_FALSE(Busy::Is_On());
    EXPECT_FALSE(Host.Run_Tool("/no/such/tool", 0));
    EXPECT_EQ(Projet_Open, 1);
}
