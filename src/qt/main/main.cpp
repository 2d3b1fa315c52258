// qt/main/main.cpp - terrafold, the program with its window.
#include <QApplication>
#include <QString>
#include <string>
#include <vector>

#include "platform/arguments.h"
#include "qt/program_window.h"

namespace {

// What stood behind the program's name, with the quotes that a shell has taken off.
std::string Command_Line(const QStringList& Arguments) {
    std::vector<std::string> Words;
    for (const QString& Word : Arguments.mid(1)) Words.push_back(Word.toStdString());
    const auto Path = Path_Of_Words(Words);
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
