// ui/dialogs/texture_preview.h - texture files shown in images of a dialog.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "tex/picture.h"
#include "ui/form/form.h"

/// The picture that one or more images of a form show. A member of the form's class:
///     Texture_Preview Preview_{*this, {"Pic", "Pic_1"}, "$BmpLC$.bmp"};
/// Pictures come straight from memory; a file of the temporary name that other programs or runs
/// left in App_Path\Temp goes before each picture and at the end.
class Texture_Preview {
public:
    Texture_Preview(Form& F, std::vector<std::string> Images, std::string Temp_Name);
    ~Texture_Preview();
    Texture_Preview(const Texture_Preview&) = delete;
    Texture_Preview& operator=(const Texture_Preview&) = delete;

    /// Shows the texture file Path. False, and the images stay as they are, when it is none.
    bool Show(std::string_view Path);
    /// The same, but the images are empty when it is none.
    bool Show_Or_Empty(std::string_view Path);
    void Empty();

private:
    void Show_Picture(Picture P);
    void Delete_Temp() const;

    Form& Form_;
    std::vector<std::string> Images_;
    std::string Temp_Name_;
    Picture Shown_;
};
