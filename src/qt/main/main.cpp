// qt/main/main.cpp - terrafold, the program with its window.
#include <QApplication>
#include <QString>
#include <string>

#include "platform/arguments.h"
#include "qt/program_window.h"
#include "qt/text.h"

namespace {

// What stood behind the program's name. A shell has taken the quotes off, and one word is the
// whole path.
std::string Command_Line(const QStringList& Words) {
    if (Words.size() < 2) return {};
    const auto Path = Path_Of_System(Words[1]);
    return Path ? '"' + *Path + '"' : std::string();
}

}  // namespace

int main(int argc, char** argv) {
    QApplication App(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Terrafold"));
    QApplication::setDesktopFileName(QStringLiteral("terrafold"));
    QApplication::setQuitOnLastWindowClosed(false);
    return Program_Run(Command_Line(QApplication::arguments()));
}
