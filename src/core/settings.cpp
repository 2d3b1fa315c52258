// core/settings.cpp - the settings file, the simulator's directory, the recent projects.
#include "core/settings.h"

#include <algorithm>
#include <string>

#include "core/grid_colours.h"
#include "core/host.h"
#include "core/number_text.h"
#include "core/program.h"
#include "platform/files.h"
#include "platform/paths.h"
#include "platform/settings_file.h"
#include "platform/simulator_dir.h"
#include "platform/text1252.h"

namespace {

constexpr char Section[] = "Terrafold";

std::string Read(std::string_view Key, std::string_view Default) {
    return std::string(Trim(Setting_Read(Ini_File, Section, Key, Default)));
}

std::string Recent_Key(std::size_t I) {
    return "DerApt" + std::to_string(I + 1);
}

void Show_Recent(std::size_t I) {
    The_Host().Set_Caption("Mnu_File_Prec(" + std::to_string(I) + ")", Shown_Path(DerApt[I]));
}

void Set_DirFS(std::string Dir) {
    if (!Dir.empty() && Dir.back() != '\\') Dir += '\\';
    DirFS = std::move(Dir);
    Dir_Texture = DirFS.empty() ? "" : DirFS + "Scenery\\world\\Texture";
}

void Find_Simulator() {
    if (!DirFS.empty()) return;
    std::string Found = Simulator_Found();
    if (Found.empty()) return;
    Set_DirFS(std::move(Found));
    Setting_Put("DirFS", DirFS);
}

}  // namespace

std::string Simulator_Found() {
    std::string Found = Simulator_Dir();
    if (Found.empty()) return {};
    if (Found.back() != '\\') Found += '\\';
    return Dir_Exists(Found + "Scenery") ? Found : std::string();
}

std::string Setting_Get(std::string_view Key) {
    return Read(Key, "");
}

bool Setting_Put(std::string_view Key, std::string_view Value) {
    return Setting_Write(Ini_File, Section, Key, Value);
}

void Read_Settings() {
    for (std::size_t I = 0; I < DerApt.size(); ++I) {
        DerApt[I] = Read(Recent_Key(I), "");
        Show_Recent(I);
    }
    Language = Read("Language", "FR");
    Fl1Fois = Round_Int(Val(Read("Fl1Fois", "0")));
    const std::string Dir = Read("DirFS", "");
    DerRefLu = Read("DerRefLu", "");
    ShowVTP1L = Round_Int(Val(Read("ShowVTP1L", "0")));
    Kind_Colours = Round_Int(Val(Read("KindColours", "0"))) != 0 ? 1 : 0;
    Set_DirFS(Dir_Exists(Dir) ? Dir : "");
    Find_Simulator();
}

void Read_View_Settings() {
    if (const std::string Index = Read("GridColour", ""); !Index.empty())
        Grid_Colour_Take(Round_Int(Val(Index)));
}

void Recent_Update(std::string_view Path, Int Mode) {
    if (Path.empty()) return;
    const std::string Wanted(Path);  // Path may be an entry of the list
    const auto Found = std::find_if(DerApt.begin(), DerApt.end(), [&](const std::string& Entry) {
        return Equal_No_Case(Entry, Wanted);
    });
    const bool Is_Head = Found == DerApt.begin();
    if (Mode == 1 ? Is_Head : Found == DerApt.end()) return;
    if (Found != DerApt.end()) {
        std::move(Found + 1, DerApt.end(), Found);
        DerApt.back().clear();
    }
    if (Mode == 1) {
        std::move_backward(DerApt.begin(), DerApt.end() - 1, DerApt.end());
        DerApt.front() = Wanted;
    }
    for (std::size_t I = 0; I < DerApt.size(); ++I) {
        Setting_Put(Recent_Key(I), DerApt[I]);
        Show_Recent(I);
    }
}
