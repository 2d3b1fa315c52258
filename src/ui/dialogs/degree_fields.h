// ui/dialogs/degree_fields.h - fields for a latitude or a longitude, as the calibration's dialogs
// have them.
#pragma once

#include <string>
#include <vector>

#include "ui/form/form.h"

/// A field that takes a decimal number or a text with the letter first, and the label beside it
/// that shows the other form.
struct Degree_Field {
    enum class Axis { Lat, Lon };
    const char* Name;
    const char* Label;
    Wording Words;
    Axis Of;
    Double* Target;         // degrees; must outlive the form
    std::string Held = {};  // as it stands in the field
};

/// What such a field takes, in the program's language.
std::string Degrees_Allowed(bool Is_Lat);

/// Adds the controls of Fields, which must outlive the form and not move.
void Add_Degree_Fields(Form& F, std::vector<Degree_Field>& Fields);

/// Fields First to Last of Fields, from 0, one below the other with their labels.
Layout Degree_Layout(const std::vector<Degree_Field>& Fields, std::size_t First, std::size_t Last);

/// Shows what the targets hold now, as decimal numbers.
void Show_Degree_Fields(Form& F, std::vector<Degree_Field>& Fields);
