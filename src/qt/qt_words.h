// qt/qt_words.h - Qt's own texts in the program's language.
#pragma once

#include <QTranslator>

/// The buttons of Qt's boxes, its file dialog and its menus, in French while the program is French
/// and as Qt has them otherwise: from Qt's catalogue where it is installed, else from a table of
/// those that the program shows.
class Qt_Words final : public QTranslator {
public:
    Qt_Words();
    QString translate(const char* Context, const char* Text, const char* Meaning,
                      int Nb) const override;
    bool isEmpty() const override { return false; }

private:
    QTranslator Catalogue_;
};
