// qt/text.cpp - the program's texts and paths as Qt wants them, and back.
#include "qt/text.h"

#include <filesystem>

#include "platform/paths.h"
#include "platform/text1252.h"

QString Qt_Text(std::string_view Text) {
    return QString::fromStdString(To_Utf8(Text));
}

std::string Program_Text(const QString& Text) {
    return From_Utf8_Loose(Text.toStdString());
}

QString Literal_Caption(std::string_view Text) {
    return Qt_Text(Text).replace(QLatin1Char('&'), QLatin1String("&&"));
}

QString System_Path(std::string_view Path) {
    const auto Native = Native_Path(Path);
    if (!Native) return {};
    const std::u8string Utf8 = Native->u8string();
    return QString::fromUtf8(reinterpret_cast<const char*>(Utf8.data()),
                             static_cast<qsizetype>(Utf8.size()));
}

std::optional<std::string> Path_Of_System(const QString& Path) {
    const QByteArray Utf8 = Path.toUtf8();
    return Program_Path(std::filesystem::path(std::u8string(Utf8.begin(), Utf8.end())));
}
