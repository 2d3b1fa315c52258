// ui/dialogs/degree_fields.cpp - fields for a latitude or a longitude.
#include "ui/dialogs/degree_fields.h"
#include "core/program.h"

#include <cctype>

#include "core/typed_number.h"
#include "geo/latlon_text.h"

namespace {

bool Is_Lat(const Degree_Field& D) {
    return D.Of == Degree_Field::Axis::Lat;
}

std::string Degrees_Text(const Degree_Field& D) {
    return Is_Lat(D) ? Lat_To_Text(*D.Target) : Lon_To_Text(*D.Target);
}

// A text stays in the field as it was typed; a number is shown as numbers are.
bool Take(Form& F, Degree_Field& D, const std::string& Text) {
    const Degrees_Typed Typed = Is_Lat(D) ? Typed_Lat(Text) : Typed_Lon(Text);
    if (Typed.Err != 0) return false;
    *D.Target = Typed.Deg;
    const bool Has_Letter = std::isalpha(static_cast<unsigned char>(Text.front())) != 0;
    D.Held = Has_Letter ? Text : Shown_Number(Typed.Deg);
    F.Set_Caption(D.Label, Typed.Other_Form);
    return true;
}

}  // namespace

std::string Degrees_Allowed(bool Is_Lat) {
    return Is_Lat ? In_Language("a latitude such as N48:30:00 or 48.5, from -90 to 90",
                                "une latitude comme N48:30:00 ou 48.5, de -90 \xE0 90")
                  : In_Language("a longitude such as E2:30:00 or 2.5, from -180 to 180",
                                "une longitude comme E2:30:00 ou 2.5, de -180 \xE0 180");
}

void Add_Degree_Fields(Form& F, std::vector<Degree_Field>& Fields) {
    for (Degree_Field& D : Fields) {
        F.Add({.Kind = Control_Kind::Text,
               .Name = D.Name,
               .Words = D.Words,
               .Rule = {.Accept = [&F, &D](const std::string& Text) { return Take(F, D, Text); },
                        .Held = [&D] { return D.Held; },
                        .Allowed = [&D] { return Degrees_Allowed(Is_Lat(D)); }},
               .Columns = 20});
        F.Add({.Name = D.Label, .Columns = 20});
    }
}

Layout Degree_Layout(const std::vector<Degree_Field>& Fields, std::size_t First, std::size_t Last) {
    Layouts Rows;
    for (std::size_t I = First; I <= Last; ++I)
        Rows.push_back(Row({Fields[I].Name, Fields[I].Label}));
    return ::Fields(std::move(Rows));
}

void Show_Degree_Fields(Form& F, std::vector<Degree_Field>& Fields) {
    for (Degree_Field& D : Fields) {
        D.Held = Shown_Number(*D.Target);
        F.Set_Text(D.Name, D.Held);
        F.Set_Caption(D.Label, Degrees_Text(D));
    }
}
