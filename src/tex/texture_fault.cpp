// tex/texture_fault.cpp - what is wrong with a texture, in words.
#include "platform/paths.h"
#include "tex/texture.h"

namespace {

const char* Wording_Of(Texture_Fault Fault) {
    switch (Fault) {
        case Texture_Fault::None:
            return "";
        case Texture_Fault::Not_There:
            return In_Language("The file cannot be read:", "Le fichier ne peut pas \xEAtre lu :");
        case Texture_Fault::Too_Short:
            return In_Language("The file is too short for a texture:",
                               "Le fichier est trop court pour une texture :");
        case Texture_Fault::Unsupported:
            return In_Language("This layout of a texture is not supported:",
                               "Ce format de texture n'est pas pris en charge :");
        case Texture_Fault::Damaged:
            return In_Language("This compressed texture is damaged:",
                               "Cette texture compress\xE9"
                               "e est endommag\xE9"
                               "e :");
        case Texture_Fault::Same_File:
            return In_Language("A texture cannot be written over itself:",
                               "Une texture ne peut pas \xEAtre \xE9"
                               "crite sur elle-m\xEAme :");
        case Texture_Fault::Not_Written:
            return In_Language("The bitmap of this texture cannot be written:",
                               "Le bitmap de cette texture ne peut pas \xEAtre \xE9"
                               "crit :");
        case Texture_Fault::No_Memory:
            return In_Language("The texture needs more memory than there is:",
                               "La texture demande plus de m\xE9moire qu'il n'y en a :");
    }
    return "";
}

}  // namespace

std::string Texture_Fault_Text(Texture_Fault Fault, std::string_view Path) {
    return std::string(Wording_Of(Fault)) + "\r\n" + Shown_Path(Path);
}
