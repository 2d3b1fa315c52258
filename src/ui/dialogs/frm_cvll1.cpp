// ui/dialogs/frm_cvll1.cpp - latitudes and longitudes from one text form into the others.
#include <array>

#include "core/program.h"
#include "core/typed_number.h"
#include "geo/latlon_text.h"
#include "ui/dialogs/dialogs.h"
#include "ui/form/field_rules.h"

namespace {

// A line of input is one of these forms; each field holds its text and the degrees it means.
enum Line { Decimal, Igc, Seconds };

struct Position_Field {
    const char* Name;
    Line Of;
    bool Is_Lat;
    const char* Start;
    std::string Held = {};
    Double Deg = 0.0;
};

Degrees_Read Read(const Position_Field& P, const std::string& Text) {
    switch (P.Of) {
        case Decimal:
            if (const auto Deg = Typed_Number(Text)) return {.Deg = *Deg};
            return {.Err = 1};
        case Igc:
            return P.Is_Lat ? Igc_To_Lat(Text) : Igc_To_Lon(Text);
        case Seconds:
            break;
    }
    return P.Is_Lat ? Text_To_Lat(Text) : Text_To_Lon(Text);
}

std::string In_Seconds(const Position_Field& P) {
    return P.Is_Lat ? Lat_To_Text(P.Deg) : Lon_To_Text(P.Deg);
}

std::string In_Minutes(const Position_Field& P) {
    return P.Is_Lat ? Lat_To_Text_Min(P.Deg) : Lon_To_Text_Min(P.Deg);
}

std::string In_Degrees(const Position_Field& P) {
    return Shown_Number(Round_Degrees(P.Deg));
}

std::string Allowed(const Position_Field& P) {
    const char* Such_As = In_Language("a text such as ", "un texte comme ");
    switch (P.Of) {
        case Decimal:
            return Limits_Text({});
        case Igc:
            return std::string(Such_As) + (P.Is_Lat ? "4830000N" : "00230000E");
        case Seconds:
            break;
    }
    return std::string(Such_As) + (P.Is_Lat ? "N48:30:00" : "E2:30:00");
}

class CvLL_Form final : public Form {
public:
    CvLL_Form()
        : Form("Frm_CvLL1", {"Latitude/Longitude Conversion", "Latitude/Longitude Conversion"}) {
        Add({.Kind = Control_Kind::Options,
             .Name = "OptClc",
             .Upright = true,
             .Item_Words = {{"Decimal degrees : -1,12345", "Decimal degrees : -1,12345"},
                            {"Degrees, minutes, 1/000 min, N/E; as IGC file :",
                             "Degrees, minutes, 1/000 min, N/E; as IGC file :"},
                            {"N/E, degrees, minutes, seconds", "N/E, degrees, minutes, seconds"}}});
        for (Position_Field& P : Fields_) Add_Field(P);
        Add({.Kind = Control_Kind::Button,
             .Name = "Cmd_Clc",
             .Words = {"Calculate", "Calculate"},
             .Role = Button_Role::Ok,
             .On_Click = [this] { Calculate(); }});
        Add({.Kind = Control_Kind::Button,
             .Name = "Cmd_Cancel",
             .Words = {"Quit", "Quit"},
             .Role = Button_Role::Cancel,
             .On_Click = [this] { Close(Form_End::Closed); }});
        Layouts Lines;
        for (Long I = 0; I < 3; ++I) {
            const std::string N = std::to_string(I + 1);
            Lines.push_back(Option("OptClc", I));
            Lines.push_back(Row({"Lat" + N, "Lon" + N}));
            Lines.push_back(Row({"RLat" + N, "RLon" + N}));
            Lines.push_back(Row({"RLat" + N + "A", "RLon" + N + "A"}));
        }
        Lines.push_back(Buttons({"Cmd_Clc", "Cmd_Cancel"}));
        Set_Layout(Column(std::move(Lines)));
        On_Load = [this] { Load(); };
    }

private:
    // Results are fields that cannot be typed into, so that they can be copied.
    void Add_Field(Position_Field& P) {
        Add({.Kind = Control_Kind::Text,
             .Name = P.Name,
             .Rule = {.Accept = [&P](const std::string& Text) { return Take(P, Text); },
                      .Held = [&P] { return P.Held; },
                      .Allowed = [&P] { return Allowed(P); }},
             .Columns = 20});
        for (const char* Form : {"", "A"})
            Add({.Kind = Control_Kind::Text,
                 .Name = "R" + std::string(P.Name) + Form,
                 .Columns = 20,
                 .Read_Only = true});
    }

    static bool Take(Position_Field& P, const std::string& Text) {
        const Degrees_Read Given = Read(P, Text);
        if (Given.Err != 0) return false;
        P.Deg = Given.Deg;
        P.Held = P.Of == Decimal ? Shown_Number(P.Deg) : Text;
        return true;
    }

    void Load() {
        for (Position_Field& P : Fields_) {
            Take(P, P.Start);
            Set_Text(P.Name, P.Held);
        }
    }

    void Calculate() {
        const Long Line = (*this)["OptClc"].Value;
        for (const Position_Field& P : Fields_) {
            if (P.Of != Line) continue;
            const std::string Result = "R" + std::string(P.Name);
            Set_Text(Result, P.Of == Seconds ? In_Degrees(P) : In_Seconds(P));
            Set_Text(Result + "A", P.Of == Igc ? In_Degrees(P) : In_Minutes(P));
        }
    }

    std::array<Position_Field, 6> Fields_{{{"Lat1", Decimal, true, "1.12345"},
                                           {"Lon1", Decimal, false, "1.12345"},
                                           {"Lat2", Igc, true, "0011222N"},
                                           {"Lon2", Igc, false, "00011222E"},
                                           {"Lat3", Seconds, true, "N1:1:1.0001"},
                                           {"Lon3", Seconds, false, "E2:2:2.0002"}}};
};

}  // namespace

std::unique_ptr<Form> Make_Frm_CvLL1() {
    return std::make_unique<CvLL_Form>();
}
