// gen/tex_table.cpp - names of textures taken from objects, joined, and found again.
#include "gen/tex_table.h"

#include <functional>

#include "core/names.h"
#include "platform/text1252.h"

namespace {

constexpr char Default_Texture[] = "004b2su1.bmp";

}  // namespace

std::string Tex_Join(const std::array<std::string, 6>& Names) {
    if (Names[0].empty()) return Default_Texture;
    std::size_t Nb = Names.size();
    while (Names[Nb - 1].empty()) --Nb;
    std::string Text = Names[0];
    const std::string* Last = &Names[0];
    for (std::size_t I = 1; I < Nb; ++I) {
        if (!Names[I].empty()) Last = &Names[I];
        Text += ";" + *Last;
    }
    return Text;
}

std::size_t Tex_List::Hash::operator()(const Tex& T) const {
    const std::size_t Numbers = static_cast<std::size_t>(T.LandClass) * 65536 +
                                static_cast<std::size_t>(T.LC) * 16 +
                                static_cast<std::size_t>(T.Tex_Type);
    return std::hash<std::string>{}(T.Name) ^ std::hash<std::size_t>{}(Numbers);
}

Long Tex_List::Tex_Find(const Tex_Spec& Wanted) {
    Tex T{.LandClass = Wanted.LandClass, .LC = Wanted.LC, .Name = {}, .Tex_Type = Wanted.Tex_Type};
    if (Wanted.LandClass != 0) T.Name = Tex_Join(Wanted.Names);
    const auto [At, Is_New] = Row_.try_emplace(T, Tab_Tex_.Nb() + 1);
    if (Is_New) Tab_Tex_.Append(std::move(T));
    return At->second;
}

// False when a name was refused: another call may then find another name in its place.
bool Tex_List::Take_Names(const Attr& A, Tex_Spec& Wanted) {
    bool All_Valid = true;
    std::string Dir;
    for (std::size_t I = 0; I < Wanted.Names.size(); ++I) {
        if (Trim(A.Texture_Name[I]).empty()) continue;
        Byte Err = 0;
        Path_Split(A.Texture_Name[I], Dir, Last_Name_, Err);
        if (Err != 0) All_Valid = false;
        Wanted.Names[I] = Last_Name_;
    }
    return All_Valid;
}

Long Tex_List::Find_For(const Attr& A) {
    // The pieces of a polygon come one after the other.
    if (&A == Last_Attr_) return Last_Row_;
    Tex_Spec Wanted;
    Wanted.LandClass = A.LandClass;
    if (A.LandClass == 0) Wanted.LC = A.LC;
    const bool Same_Again = A.LandClass != 1 || Take_Names(A, Wanted);
    Last_Row_ = Tex_Find(Wanted);
    Last_Attr_ = Same_Again ? &A : nullptr;
    return Last_Row_;
}
