// gen/restore_outputs.cpp - what is kept and what stands change places.
#include "gen/restore_outputs.h"

#include <algorithm>

#include "core/host.h"
#include "core/model.h"
#include "core/program.h"
#include "gen/home_turn.h"
#include "gen/kept_outputs.h"
#include "gen/outputs.h"
#include "gen/source_frame.h"
#include "platform/paths.h"

namespace {

bool Put_Back(const Kept_Output& Output) {
    if (Output.File.empty() || !Bgl_May_Be_Made(Output.Path)) return true;
    Kept_Note_New(Output.Path);
    if (!File_Move(Output.File, Output.Path)) {
        Box_Not_Whole(Output.Path);
        return false;
    }
    Kept_Forget(Output);
    The_Host().Note_File(File_Event::Written, Output.Path);
    return true;
}

}  // namespace

// What the last generation did not touch stays, be it that it was killed or passed it over. Of
// those that could not be moved back the set before keeps what it can.
void Restore_Outputs() {
    const Home_Turn Turn;
    if (!Turn.Is_Taken()) return;
    if (Kept_Is_Open()) Kept_Close();
    Outputs_Begin();
    const std::vector<Kept_Output> Outputs = Kept_Outputs();
    if (std::ranges::all_of(Outputs, [](const Kept_Output& K) { return K.File.empty(); })) {
        Plain_Box(In_Language("No former outputs are kept of ",
                              "Aucun ancien fichier de sortie n'est gard\xE9 de ") +
                  Shown_Path(Nom_Projet));
        return;
    }
    for (const Kept_Output& K : Outputs) Bgl_Delete(K.Path);
    bool All_Back = true;
    for (const Kept_Output& K : Outputs) All_Back = Put_Back(K) && All_Back;
    if (All_Back) Kept_Close();
}
