// qt/boxes.cpp - message boxes and questions for a file.
#include "qt/boxes.h"

#include <QAbstractButton>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>
#include <QPushButton>
#include <vector>

#include "core/program.h"
#include "qt/text.h"

namespace {

QMessageBox::Icon Icon_Of(Int Style) {
    switch (Style / 16 * 16) {
        case Box_Stop:
            return QMessageBox::Critical;
        case Box_Question:
            return QMessageBox::Question;
        case Box_Warning:
            return QMessageBox::Warning;
        case Box_Information:
            return QMessageBox::Information;
        default:
            return QMessageBox::NoIcon;
    }
}

struct Box_Button {
    Int Result;
    const char* English;
    const char* French;
    QMessageBox::ButtonRole Role;
};

constexpr Box_Button Ok{Button_Ok, "OK", "OK", QMessageBox::AcceptRole};
constexpr Box_Button Cancel{Button_Cancel, "Cancel", "Annuler", QMessageBox::RejectRole};
// The marked letters press them, by themselves or with Alt.
constexpr Box_Button Yes{Button_Yes, "&Yes", "&Oui", QMessageBox::YesRole};
constexpr Box_Button No{Button_No, "&No", "&Non", QMessageBox::NoRole};

// The first is the default one; the last is what closing the box means.
std::vector<Box_Button> Buttons_Of(Int Style) {
    switch (Style % 16) {
        case Box_Ok_Cancel:
            return {Ok, Cancel};
        case Box_Yes_No_Cancel:
            return {Yes, No, Cancel};
        case Box_Yes_No:
            return {Yes, No};
        default:
            return {Ok};
    }
}

// "Text (*.ext)|*.ext": the words, and the patterns in both cases, since some file dialogs
// tell one from the other.
struct Filter {
    QString Words, Extension;
};

Filter Read_Filter(const std::string& Text) {
    const QString Whole = Qt_Text(Text);
    const QString Pattern = Whole.section(QLatin1Char('|'), 1);
    if (Pattern.isEmpty()) return {};
    const QString Title = Whole.section(QLatin1Char('|'), 0, 0).section(QLatin1String(" ("), 0, 0);
    return {Title + QLatin1String(" (") + Pattern.toUpper() + QLatin1Char(' ') + Pattern.toLower() +
                QLatin1Char(')'),
            QFileInfo(Pattern).suffix()};
}

void Word_In_Language(QFileDialog& Dialog, File_Question::Kind Mode) {
    const auto Say = [&](QFileDialog::DialogLabel What, const char* English, const char* French) {
        Dialog.setLabelText(What, Qt_Text(In_Language(English, French)));
    };
    switch (Mode) {
        case File_Question::Kind::Open:
            Say(QFileDialog::Accept, "Open", "Ouvrir");
            break;
        case File_Question::Kind::Save:
            Say(QFileDialog::Accept, "Save", "Enregistrer");
            break;
        case File_Question::Kind::Any_Name:
            Say(QFileDialog::Accept, "OK", "OK");
            break;
    }
    Say(QFileDialog::Reject, "Cancel", "Annuler");
    Say(QFileDialog::FileName, "File name:", "Nom du fichier :");
    Say(QFileDialog::FileType, "Files of type:", "Type de fichiers :");
    Say(QFileDialog::LookIn, "Look in:", "Dossier :");
}

// The directory to begin in: that of the question, or of the file that it names.
QString Directory_Of(const std::string& Start) {
    const QString Path = System_Path(Start);
    const QFileInfo Info(Path);
    return Path.isEmpty() || Info.isDir() ? Path : Info.absolutePath();
}

}  // namespace

Int Show_Message_Box(const Box& B, QWidget* Parent) {
    QMessageBox Shown(Icon_Of(B.Style), Qt_Text(B.Title), QString(), QMessageBox::NoButton, Parent);
    Shown.setObjectName(QStringLiteral("box"));
    Shown.setTextFormat(Qt::PlainText);
    Shown.setText(Qt_Text(B.Text).replace(QLatin1String("\r\n"), QLatin1String("\n")));
    const std::vector<Box_Button> Buttons = Buttons_Of(B.Style);
    std::vector<QAbstractButton*> Made;
    for (const Box_Button& Button : Buttons)
        Made.push_back(Shown.addButton(
            QString::fromLatin1(In_Language(Button.English, Button.French)), Button.Role));
    Shown.setDefaultButton(static_cast<QPushButton*>(Made.front()));
    Shown.setEscapeButton(Made.back());
    Shown.exec();
    for (std::size_t I = 0; I < Made.size(); ++I)
        if (Shown.clickedButton() == Made[I]) return Buttons[I].Result;
    return Buttons.back().Result;
}

std::optional<std::string> Ask_For_File(const File_Question& Q, QWidget* Parent) {
    const bool Opens = Q.Mode == File_Question::Kind::Open;
    QFileDialog Dialog(Parent, Qt_Text(Q.Title), Directory_Of(Q.Start_Dir));
    Dialog.setAcceptMode(Opens ? QFileDialog::AcceptOpen : QFileDialog::AcceptSave);
    Dialog.setFileMode(Opens ? QFileDialog::ExistingFile : QFileDialog::AnyFile);
    Dialog.setOption(QFileDialog::DontConfirmOverwrite, Q.Mode == File_Question::Kind::Any_Name);
    if (const Filter F = Read_Filter(Q.Filter); !F.Words.isEmpty()) {
        Dialog.setNameFilter(F.Words);
        Dialog.setDefaultSuffix(F.Extension);
    }
    Word_In_Language(Dialog, Q.Mode);
    if (!Q.File_Name.empty()) Dialog.selectFile(Qt_Text(Q.File_Name));
    if (Dialog.exec() != QDialog::Accepted || Dialog.selectedFiles().isEmpty()) return std::nullopt;
    const auto Chosen = Path_Of_System(Dialog.selectedFiles().front());
    if (!Chosen)
        Show_Message_Box({.Text = In_Language("The name has characters that can't be used",
                                              "Le nom contient des caract\xE8res inutilisables"),
                          .Style = Box_Stop},
                         Parent);
    return Chosen;
}
