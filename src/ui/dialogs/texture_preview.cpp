// ui/dialogs/texture_preview.cpp - from a texture file to the images that show it.
#include "ui/dialogs/texture_preview.h"
#include "core/project_paths.h"

#include <utility>

#include "core/program.h"
#include "platform/files.h"
#include "tex/texture.h"

Texture_Preview::Texture_Preview(Form& F, std::vector<std::string> Images, std::string Temp_Name)
    : Form_(F), Images_(std::move(Images)), Temp_Name_(std::move(Temp_Name)) {}

Texture_Preview::~Texture_Preview() {
    Delete_Temp();
}

void Texture_Preview::Delete_Temp() const {
    File_Delete(App_Path + "\\Temp\\" + Temp_Name_);
}

bool Texture_Preview::Show(std::string_view Path) {
    Delete_Temp();
    Picture P;
    std::string Description;
    if (Texture_Read(In_Project(Path), Pal_Fs5, P, Description) != Texture_Fault::None)
        return false;
    Show_Picture(std::move(P));
    return true;
}

bool Texture_Preview::Show_Or_Empty(std::string_view Path) {
    if (Show(Path)) return true;
    Empty();
    return false;
}

void Texture_Preview::Empty() {
    Show_Picture({});
}

void Texture_Preview::Show_Picture(Picture P) {
    Shown_ = std::move(P);
    for (const std::string& Image : Images_)
        Form_.Set_Shown(Image, Shown_.Is_Empty() ? nullptr : &Shown_);
}
