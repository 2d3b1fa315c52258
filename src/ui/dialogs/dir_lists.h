// ui/dialogs/dir_lists.h - going about directories: the controls Path, Drive1 and Dir1.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "ui/form/form.h"

/// Dir and Name with one "\" between them.
std::string Path_Joined(const std::string& Dir, const std::string& Name);

/// A member of a form's class, made in the form's constructor: it adds the controls, and the form
/// lays them out. A double click on a directory opens it, ".." the one above.
class Dir_Lists {
public:
    struct Events {
        std::function<void()> On_Dir = {};                                // another one is shown
        std::function<void(const std::string& Drive)> On_Not_Ready = {};  // everything stays
    };
    Dir_Lists(Form& F, Events E);

    /// Shows the directory Path, or the one round it that is there; App_Path when none is.
    void Show(const std::string& Path);
    /// The directory shown, without a final "\" but for a root.
    const std::string& Dir() const { return Dir_; }

private:
    void List_Dir(const std::string& Path);
    bool Take_Path(std::string Text);
    void Change_Drive();
    void Go_Into();

    Form& Form_;
    Events Events_;
    std::vector<std::string> Drives_;
    std::string Dir_;
};
