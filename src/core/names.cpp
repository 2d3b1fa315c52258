// core/names.cpp - which names may be files, and the parts of paths and names.
#include "core/names.h"

#include <algorithm>

#include "core/program.h"
#include "platform/text1252.h"

namespace {

constexpr std::string_view Allowed = " 0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZ_.!#$%&'()-~{}";
constexpr std::size_t Max_Extension = 3;

bool Is_Allowed(char C) {
    return Allowed.find(Upper_1252(C)) != std::string_view::npos;
}

}  // namespace

bool Name_Valid(std::string_view Name) {
    if (Name.empty() || Name.front() == ' ') return false;
    if (!std::all_of(Name.begin(), Name.end(), Is_Allowed)) return false;
    const std::size_t Dot = Name.find('.');
    if (Dot == std::string_view::npos || Dot == 0) return false;
    const std::size_t Behind = Name.size() - Dot - 1;
    if (Behind < 1 || Behind > Max_Extension) return false;
    return Name[Dot - 1] != ' ' && Name.find('.', Dot + 1) == std::string_view::npos;
}

std::string Name_Rule_Text() {
    return std::string(
               In_Language("letters, digits, blanks and ", "lettres, chiffres, blancs et ")) +
           "_.!#$%&'()-~{}" +
           In_Language(", no blank first, one dot with one to three characters behind it",
                       ", sans blanc au d\xE9"
                       "but, un seul point suivi d'un \xE0 trois "
                       "caract\xE8res");
}

void Path_Split(std::string_view Path, std::string& Dir, std::string& Name, Byte& Err) {
    Err = 1;
    // Path may be a view of Dir or Name.
    const std::string Whole(Trim(Path));
    const std::size_t Slash = Whole.rfind('\\');
    if (Whole.empty() || Slash == 0 || Slash == Whole.size() - 1) return;
    const bool Has_Dir = Slash != std::string::npos;
    const std::string_view Tail =
        std::string_view(Whole).substr(Has_Dir ? Slash + 1 : std::size_t{0});
    if (!Name_Valid(Tail)) return;
    Dir = Has_Dir ? Whole.substr(0, Slash) : std::string();
    Name = Tail;
    Err = 0;
}

void Name_Split(std::string_view Text, std::string& Base, std::string& Ext) {
    // Text may be a view of Base or Ext.
    const std::string Whole(Text);
    const std::size_t Dot = Whole.find('.');
    Base = Whole.substr(0, Dot);
    Ext = Dot == std::string::npos ? std::string() : Upper_1252(Whole.substr(Dot + 1));
}
