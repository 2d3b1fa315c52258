// gen/driver.h - from the open project to the simulator's files.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "core/numbers.h"
#include "gen/generation_report.h"

/// Set by Tex_Link_Check when a linked polygon leaves its texture: nothing is generated.
inline Int Poly_Out_Of_Tex = 0;

/// Tests that every polygon linked to a texture lies inside its rectangle, edges included, and
/// sets or clears Poly_Out_Of_Tex. The first point outside shows message 130. When all is well
/// the texture selection of the canvas is cleared.
void Tex_Link_Check();

/// Leaves the editing mode: ends a drawing in progress, checks the linked polygons, hides the
/// altitude label.
void Mode_Leave();

struct Generation_Plan {
    Tool_Choice Choice = Tool_Choice::All;
    /// Asked before anything is touched when tools that the project needs can't be started, with
    /// their paths. Without it they are not looked for.
    std::function<Tool_Choice(const std::vector<std::string>& Missing)> On_Missing = {};
};

/// The whole generation: checks, deletion of older outputs, then every emitter in its order.
/// The model is only read. Called with a project open. The_Report tells what became of it; false
/// when nothing was begun.
bool Generation_Run(const Generation_Plan& Plan);

/// The same, whatever tools there are.
void Cmd_API();

/// Gives the core the routines of this folder that it asks for (core/view_calls.h).
void Gen_Install();
