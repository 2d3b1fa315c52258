// core/palette.cpp - reading the palette, and what stands in for it.
#include "core/palette.h"

#include "core/host.h"
#include "platform/file_reader.h"
#include "platform/paths.h"

namespace {

constexpr std::size_t Palette_Bytes = std::size_t{256} * 3;

}  // namespace

bool Pal_Read(std::string_view Path, Palette& Into) {
    File_Reader File(Path);
    std::array<Byte, Palette_Bytes> Raw{};
    if (!File.Is_Open() || File.Size() != Palette_Bytes || !File.Read(0, Raw)) return false;
    for (std::size_t I = 0; I < Into.size(); ++I)
        Into[I] = {.Blue = Raw[3 * I + 2], .Green = Raw[3 * I + 1], .Red = Raw[3 * I], .Zero = 0};
    return true;
}

void Pal_Load() {
    The_Program.Pal_Lacks = Pal_Read(App_Path + "\\Fs5.pal", Pal_Fs5) ? 0 : 1;
    if (The_Program.Pal_Lacks == 0) return;
    for (std::size_t I = 0; I < Pal_Fs5.size(); ++I) {
        const auto Grey = static_cast<Byte>(I);
        Pal_Fs5[I] = {.Blue = Grey, .Green = Grey, .Red = Grey, .Zero = 0};
    }
}

void Pal_Tell_If_Lacking() {
    if (The_Program.Pal_Lacks == 0) return;
    The_Program.Pal_Lacks = 0;
    Plain_Box(In_Language("Textures of type R8 are shown in greys: this palette is not there, or "
                          "not whole:",
                          "Les textures de type R8 sont affich\xE9"
                          "es en gris : cette palette manque ou n'est pas compl\xE8te :") +
              ("\r\n" + Shown_Path(App_Path + "\\Fs5.pal")));
}
