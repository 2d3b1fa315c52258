// ui/frm/generate.h - the generation as the main form starts it.
#pragma once

/// Generates the scenery of the open project. With ShowVTP1L 1 the canvas shows how its polygons
/// are taken apart: what the split takes off in red, what the cut leaves in green.
///
/// When tools that the project needs are missing the dialog Frm_Tools asks what to make; Frm_Report
/// tells what became of it. A host without these forms does neither.
void Generate_In_View();

/// The user wants the generation to end: it does before the next tool or polygon. A tool that runs
/// is ended if the user says so.
void Generate_Stop();

/// Tells how long the generation has been running; called now and then by whoever shows the form.
void Generate_Clock();
