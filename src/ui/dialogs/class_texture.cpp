// ui/dialogs/class_texture.cpp - the simulator's texture that shows a land class.
#include "ui/dialogs/class_texture.h"

#include "core/number_text.h"
#include "core/program.h"

std::string Class_Texture_Path(const LC_Entry& Class) {
    constexpr Byte First_Without = 252;
    if (Class.Class >= First_Without) return {};
    std::string Number(Num_Text(Class.Texture));
    Number.insert(0, 3 - Number.size(), '0');
    return Dir_Texture + "\\" + Number + "b2su1.bmp";
}
