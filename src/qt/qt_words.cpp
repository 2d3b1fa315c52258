// qt/qt_words.cpp - Qt's own texts in the program's language.
#include "qt/qt_words.h"

#include <QLibraryInfo>
#include <string_view>

#include "core/program.h"
#include "qt/text.h"

namespace {

struct Row {
    std::string_view Qt, French;
};

// Whatever part of Qt says it: each means the same everywhere.
constexpr Row Rows[] = {
    // buttons
    {"OK", "OK"},
    {"Open", "Ouvrir"},
    {"&Open", "&Ouvrir"},
    {"Save", "Enregistrer"},
    {"&Save", "&Enregistrer"},
    {"Cancel", "Annuler"},
    {"Close", "Fermer"},
    {"&Yes", "&Oui"},
    {"&No", "&Non"},
    {"&Choose", "&Choisir"},
    {"Help", "Aide"},
    // menus of a field
    {"&Undo", "&Annuler"},
    {"&Redo", "&R\xE9tablir"},
    {"Cu&t", "Co&uper"},
    {"&Copy", "Co&pier"},
    {"&Paste", "Co&ller"},
    {"Delete", "Supprimer"},
    {"Select All", "Tout s\xE9lectionner"},
    // menus of a scroll bar
    {"Scroll here", "D\xE9\x66iler jusqu'ici"},
    {"Left edge", "Extr\xEAme gauche"},
    {"Right edge", "Extr\xEAme droite"},
    {"Top", "En haut"},
    {"Bottom", "En bas"},
    {"Page left", "Page pr\xE9\x63\xE9\x64\x65nte"},
    {"Page right", "Page suivante"},
    {"Page up", "Page pr\xE9\x63\xE9\x64\x65nte"},
    {"Page down", "Page suivante"},
    {"Scroll left", "D\xE9\x66iler vers la gauche"},
    {"Scroll right", "D\xE9\x66iler vers la droite"},
    {"Scroll up", "D\xE9\x66iler vers le haut"},
    {"Scroll down", "D\xE9\x66iler vers le bas"},
    // the file dialog
    {"Back", "Pr\xE9\x63\xE9\x64\x65nt"},
    {"Forward", "Suivant"},
    {"Go back", "Revenir"},
    {"Go forward", "Avancer"},
    {"Parent Directory", "Dossier parent"},
    {"Go to the parent directory", "Aller au dossier parent"},
    {"Create New Folder", "Cr\xE9\x65r un dossier"},
    {"Create a New Folder", "Cr\xE9\x65r un dossier"},
    {"New Folder", "Nouveau dossier"},
    {"&New Folder", "&Nouveau dossier"},
    {"List View", "Liste"},
    {"Change to list view mode", "Afficher la liste"},
    {"Detail View", "D\xE9tails"},
    {"Change to detail view mode", "Afficher les d\xE9tails"},
    {"Sidebar", "Barre lat\xE9rale"},
    {"List of places and bookmarks", "Liste des lieux et des signets"},
    {"Files", "Fichiers"},
    {"Look in:", "Dossier :"},
    {"File &name:", "&Nom du fichier :"},
    {"Files of type:", "Type de fichiers :"},
    {"Directory:", "Dossier :"},
    {"&Rename", "&Renommer"},
    {"&Delete", "&Supprimer"},
    {"Remove", "Enlever"},
    {"Show &hidden files", "Afficher les fichiers &cach\xE9s"},
    {"All Files (*)", "Tous les fichiers (*)"},
    {"Recent Places", "Lieux r\xE9\x63\x65nts"},
    {"Computer", "Ordinateur"},
    {"Name", "Nom"},
    {"Size", "Taille"},
    {"Type", "Type"},
    {"Date Modified", "Modifi\xE9 le"},
    {"Drive", "Lecteur"},
    {"File", "Fichier"},
    {"Folder", "Dossier"},
    {"%1 already exists.\nDo you want to replace it?", "%1 existe.\nVoulez-vous le remplacer ?"},
    {"%1\nFile not found.\nPlease verify the correct file name was given.",
     "%1\nFichier introuvable.\nV\xE9rifiez le nom du fichier."},
    {"%1\nDirectory not found.\nPlease verify the correct directory name was given.",
     "%1\nDossier introuvable.\nV\xE9rifiez le nom du dossier."},
    {"Are you sure you want to delete '%1'?", "Voulez-vous vraiment supprimer '%1' ?"},
    {"'%1' is write protected.\nDo you want to delete it anyway?",
     "'%1' est prot\xE9g\xE9 en \xE9\x63riture.\nVoulez-vous quand m\xEAme le supprimer ?"},
    {"Could not delete directory.", "Le dossier n'a pas pu \xEAtre supprim\xE9."},
    {"Invalid filename", "Nom inutilisable"},
    // pages, and keys in menus
    {"Scroll Left", "D\xE9\x66iler vers la gauche"},
    {"Scroll Right", "D\xE9\x66iler vers la droite"},
    {"Shift", "Maj"},
};

}  // namespace

Qt_Words::Qt_Words() {
    (void)Catalogue_.load(QStringLiteral("qtbase_fr"),
                          QLibraryInfo::path(QLibraryInfo::TranslationsPath));
}

QString Qt_Words::translate(const char* Context, const char* Text, const char* Meaning,
                            int Nb) const {
    if (Language == "US" || Text == nullptr) return {};
    if (const QString Said = Catalogue_.translate(Context, Text, Meaning, Nb); !Said.isNull())
        return Said;
    for (const Row& R : Rows)
        if (R.Qt == Text) return Qt_Text(R.French);
    return {};
}
