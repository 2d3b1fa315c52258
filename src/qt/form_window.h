// qt/form_window.h - the windows that forms are shown in.
#pragma once

#include <QDialog>
#include <memory>
#include <string>

#include "ui/form/form.h"

class Form_Widget;

/// A window round one form: its title, its closing by the user, files dropped on it.
class Form_Window : public QDialog {
public:
    Form_Window(Form& F, QWidget* Parent, Qt::WindowFlags Flags);

    Form_Widget& Shown() { return *Shown_; }
    /// One that is larger than the screen can be scrolled.
    void Fit_Screen();
    /// What follows when the file Path is given to the window from outside.
    void Take_File(const std::string& Path);

protected:
    void closeEvent(QCloseEvent* E) override;
    void keyPressEvent(QKeyEvent* E) override;
    void dragEnterEvent(QDragEnterEvent* E) override;
    void dropEvent(QDropEvent* E) override;
    void reject() override;

private:
    Form_Widget* Shown_;
};

/// The window of the main form, as large as the screen comfortably allows.
class Main_Window final : public Form_Window {
public:
    explicit Main_Window(Form& F);

    /// Its size and place, kept in the settings.
    void Take_Place();
    void Keep_Place() const;
};

/// Shows F as a dialog above Parent and returns when it is closed. Main is the window whose
/// controls and canvas F's place may name, or null.
void Run_Dialog(Form& F, QWidget* Parent, Form_Window* Main = nullptr);

/// Shows F, which is not modal, until it is closed. The window keeps it alive and ends with Main.
void Open_Dialog(std::shared_ptr<Form> F, Form_Window& Main);
