// ui/frm/kept_view.cpp - where each recent project was looked at, and what was shown.
#include "ui/frm/kept_view.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <optional>
#include <sstream>
#include <string>
#include <vector>

#include "core/model.h"
#include "core/program.h"
#include "core/settings.h"
#include "platform/text1252.h"
#include "ui/canvas/view.h"

namespace {

std::string Key_Of(std::size_t I) {
    return "View" + std::to_string(I + 1);
}

std::string Exact(Double Value) {
    std::array<char, 40> Digits{};
    return {Digits.data(), std::to_chars(Digits.data(), Digits.data() + Digits.size(), Value).ptr};
}

struct Kept {
    Double Zoom = 1.0, X = 0.0, Y = 0.0;
    std::string Path;
};

std::optional<Kept> Read_Kept(const std::string& Text) {
    Kept K;
    const char* At = Text.data();
    const char* const End = At + Text.size();
    for (Double* Value : {&K.Zoom, &K.X, &K.Y}) {
        const auto [Next, Error] = std::from_chars(At, End, *Value);
        if (Error != std::errc() || Next == End || *Next != ' ') return std::nullopt;
        At = Next + 1;
    }
    K.Path.assign(At, End);
    return K;
}

void Put_If_New(const std::string& Key, const std::string& Value) {
    if (Setting_Get(Key) != Value) Setting_Put(Key, Value);
}

std::array<bool*, 5> Shown_Flags() {
    return {&Show_Bitmap, &Show_Grid, &Show_Texture, &Show_Ima, &Show_Objects};
}

void Keep_Shown() {
    std::string Text;
    for (const bool* Flag : Shown_Flags()) Text += *Flag ? "1 " : "0 ";
    Put_If_New("Shown", Text + std::to_string(Map_Opacity));
}

// All or nothing: a line that was changed by hand must not hide half the map.
void Take_Shown() {
    std::istringstream Text(Setting_Get("Shown"));
    std::array<bool, 5> Flags{};
    Int Opacity = 0;
    for (bool& Flag : Flags) Text >> Flag;
    Text >> Opacity;
    if (!Text || (Opacity != 100 && Opacity != 75 && Opacity != 50 && Opacity != 25)) return;
    for (std::size_t I = 0; I < Flags.size(); ++I) *Shown_Flags()[I] = Flags[I];
    Map_Opacity = Opacity;
}

}  // namespace

void Kept_View_Keep() {
    if (Keeps_View == 0 || Projet_Open == 0 || Edit_On == 0) return;
    std::vector<std::string> Views{Exact(Zoom) + ' ' + Exact(Pan_X) + ' ' + Exact(Pan_Y) + ' ' +
                                   Nom_Projet};
    for (std::size_t I = 0; I < DerApt.size(); ++I) {
        const auto Other = Read_Kept(Setting_Get(Key_Of(I)));
        if (Other && !Equal_No_Case(Other->Path, Nom_Projet))
            Views.push_back(Setting_Get(Key_Of(I)));
    }
    Views.resize(std::min(Views.size(), DerApt.size()));
    for (std::size_t I = 0; I < Views.size(); ++I) Put_If_New(Key_Of(I), Views[I]);
    Keep_Shown();
}

void Kept_View_Take() {
    if (Keeps_View == 0) return;
    Take_Shown();
    for (std::size_t I = 0; I < DerApt.size(); ++I) {
        const auto Found = Read_Kept(Setting_Get(Key_Of(I)));
        if (Found && Equal_No_Case(Found->Path, Nom_Projet))
            return View_Put(Found->Zoom, Found->X, Found->Y);
    }
}
