// tests/qt/main.cpp - the tests of the window, on a screen in memory.
#include <gtest/gtest.h>

#include <QApplication>
#include <cstdio>

namespace {

// The screen in memory tells again and again what it can do without.
void Write_Warning(QtMsgType, const QMessageLogContext&, const QString& Text) {
    if (!Text.contains(QLatin1String("This plugin does not support")))
        std::fprintf(stderr, "%s\n", qPrintable(Text));
}

}  // namespace

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    qInstallMessageHandler(Write_Warning);
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    QApplication App(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    return RUN_ALL_TESTS();
}
