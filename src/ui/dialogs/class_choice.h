// ui/dialogs/class_choice.h - a list of classes in a dialog, with the texture of the chosen one.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "gen/class_lists.h"
#include "ui/dialogs/texture_preview.h"
#include "ui/form/form.h"

/// The combo Cmbo and the image Pic of a form. Without a file of classes, or one of a single
/// line, it has no rows.
class Class_Choice {
public:
    /// Temp_Name is that of the preview's scratch file. On_Choice runs when a row was chosen.
    Class_Choice(Form& F, Class_Sort Sort, std::string Temp_Name, std::function<void()> On_Choice);

    /// Reads the list, but for the class Left_Out; no row is chosen.
    void Read(int Left_Out = -1);
    bool Has_Rows() const { return !List_.empty(); }
    bool Has(Long Class) const { return Class_Place(List_, Class).has_value(); }
    /// Chooses the first row of Class, or the first of all; nothing without rows.
    void Choose(Long Class);
    /// The entry of the chosen row, or null.
    const Class_Entry* Chosen() const;
    /// Shows the chosen class in Pic, or nothing.
    void Show_Class();
    /// Shows a texture file in Pic, or nothing.
    void Show_File(const std::string& Path);

private:
    Form& Form_;
    Class_Sort Sort_;
    std::vector<Class_Entry> List_;
    Texture_Preview Preview_;
    std::string Shown_;  // the path of what Pic shows
};
