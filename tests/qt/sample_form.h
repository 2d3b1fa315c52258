// tests/qt/sample_form.h - a form with a control of every kind.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "ui/form/form.h"

/// Handlers write what happened into Log, a word each.
struct Sample {
    Sample();

    Form F{"Frm_Sample", {"Sample", "Exemple"}};
    std::string Log;
    std::string Held = "12";  // of the number field, which takes whole numbers
};
