// qt/main/main.cpp - terrafold, the program with its window.
#include <QApplication>
#include <QString>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <utility>
#include <vector>

#include "build_facts.h"
#include "core/program.h"
#include "platform/arguments.h"
#include "platform/text1252.h"
#include "qt/command_line.h"
#include "qt/program_window.h"

namespace {

constexpr int Not_Started = 1;
constexpr int Wrong_Usage = 2;

// What Qt says while it opens the display: it ends the program, with much text, when it can't.
std::vector<QByteArray> Said;

void Keep_What_Is_Said(QtMsgType Type, const QMessageLogContext&, const QString& Text) {
    if (Type != QtFatalMsg) return Said.push_back(Text.toLocal8Bit());
    std::fputs("terrafold: no display can be opened; terrafold-cli works without one\n", stderr);
    std::_Exit(Not_Started);
}

// While it lives a display that is not there ends the program in one line.
class Display_Opening {
public:
    Display_Opening() : Former_(qInstallMessageHandler(Keep_What_Is_Said)) {}
    ~Display_Opening() {
        qInstallMessageHandler(Former_);
        for (const QByteArray& Text : std::exchange(Said, {}))
            std::fprintf(stderr, "%s\n", Text.constData());
    }
    Display_Opening(const Display_Opening&) = delete;
    Display_Opening& operator=(const Display_Opening&) = delete;

private:
    QtMessageHandler Former_;
};

int Print(const std::string& Text) {
    const bool Whole = std::fputs(Text.c_str(), stdout) >= 0 && std::fflush(stdout) == 0;
    return Whole ? 0 : Not_Started;
}

// As the box About tells it.
std::string Build_Told() {
    const std::string Commit = Build_Commit;
    return std::string("Terrafold ") + Build_Version +
           (Commit.empty() ? Commit : "\r\nCommit " + Commit) + "\r\n" + Build_Kind + ", " +
           Build_Compiler + ", Qt " + qVersion();
}

int Run_Window(int argc, char** argv, const Window_Arguments& A) {
    std::optional<Display_Opening> Opening(std::in_place);
    QApplication App(argc, argv);
    Opening.reset();
    QApplication::setApplicationName(QStringLiteral("Terrafold"));
    QApplication::setDesktopFileName(QStringLiteral("terrafold"));
    QApplication::setQuitOnLastWindowClosed(false);
    Program_Build = Build_Told();
    return Program_Run(A.Project);
}

}  // namespace

int main(int argc, char** argv) {
    const Window_Arguments A = Window_Parse(Program_Arguments(argc, argv));
    if (A.What == Window_Arguments::Command::Help) return Print(Window_Help);
    if (!A.Error.empty()) {
        std::fprintf(stderr, "terrafold: %s\nTry terrafold --help\n",
                     To_Utf8(As_One_Line(From_Utf8_Loose(A.Error))).c_str());
        return Wrong_Usage;
    }
    if (A.What == Window_Arguments::Command::Version) return Print("terrafold 5.0\n");
    return Run_Window(argc, argv, A);
}
