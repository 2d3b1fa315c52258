// ui/canvas/ima_pictures.cpp - the pictures of textures that lie on the map.
#include "ui/canvas/ima_pictures.h"

#include <string>
#include <utility>

#include "core/model.h"
#include "core/program.h"
#include "core/project_paths.h"
#include "platform/files.h"
#include "tex/texture.h"

namespace {

// What earlier programs left on their way to a picture; this one goes by memory.
void Delete_Temp_Files() {
    for (const char* Name : {"\\Temp\\$BmpIma$.bmp", "\\Temp\\$Tex$.bmp"})
        File_Delete(App_Path + Name);
}

std::size_t Holder(Long I) {
    return static_cast<std::size_t>(I - 1);
}

bool Load(Long I) {
    Picture P;
    std::string Description;
    if (Texture_Read(In_Project(Tab_Ima[I].DirFic), Pal_Fs5, P, Description) != Texture_Fault::None)
        return false;
    if (WPicIma.size() <= Holder(I)) WPicIma.resize(Holder(I) + 1);
    WPicIma[Holder(I)] = std::move(P);
    return true;
}

}  // namespace

bool Ima_Picture_Load(Long I) {
    Delete_Temp_Files();
    return Load(I);
}

const Picture* Ima_Picture(Long I) {
    if (WPicIma.size() <= Holder(I) || WPicIma[Holder(I)].Is_Empty()) return nullptr;
    return &WPicIma[Holder(I)];
}

void Ima_Picture_Drop(Long I) {
    if (WPicIma.size() > Holder(I)) WPicIma[Holder(I)] = {};
}

void Ima_Load() {
    Ima_Unload();
    if (Nb_Ima != 0) Delete_Temp_Files();
    for (Long I = 1; I <= Nb_Ima; ++I) Load(I);
}

void Ima_Unload() {
    WPicIma.clear();
    WPicIma.shrink_to_fit();
}
