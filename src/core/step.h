// core/step.h - the difference between two states of the model, in bytes and taken apart.
//
// Rows count from 1. Between the rows that have gone and those that have come lies a middle
// state, in which the rows that stayed stand: a difference turned round is one as well.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <tuple>
#include <utility>
#include <vector>

#include "core/record_bytes.h"

/// The tables in the order in which steps have them.
enum class Table_Of : Byte { Obj, Pt, Area, Lod8, Excl, LC, WC, Ima, PtGrid };
inline constexpr std::size_t Nb_Tables = 9;

/// Calls Visit(Table_Of, table) for every table of the project.
template <typename F>
void Each_Table(F&& Visit) {
    Visit(Table_Of::Obj, Tab_Obj), Visit(Table_Of::Pt, Tab_Pt), Visit(Table_Of::Area, Tab_Area);
    Visit(Table_Of::Lod8, Tab_Lod8), Visit(Table_Of::Excl, Tab_Excl), Visit(Table_Of::LC, Tab_LC);
    Visit(Table_Of::WC, Tab_WC), Visit(Table_Of::Ima, Tab_Ima);
    Visit(Table_Of::PtGrid, Tab_PtGrid);
}

struct Row_Bytes {
    Long At = 0;
    std::string_view Bytes;
};
struct Changed_Row {
    Long At = 0;  // in the middle state
    std::string_view Before, After;
};

struct Table_Change {
    Long Nb_Before = 0, Nb_After = 0, Max_Before = 0, Max_After = 0;
    std::vector<Row_Bytes> Gone;  // by their places before
    std::vector<Changed_Row> Changed;
    std::vector<Row_Bytes> Came;  // by their places after

    bool Has_Rows() const { return !Gone.empty() || !Changed.empty() || !Came.empty(); }
    bool Is_Empty() const { return !Has_Rows() && Max_Before == Max_After; }
};

/// Views of the bytes that it was read from.
struct Step_Change {
    std::array<Table_Change, Nb_Tables> Tables;
    std::string_view Head_Before, Head_After;  // empty when the scalars stayed
    std::string_view Calibration_Before, Calibration_After;

    Table_Change& operator[](Table_Of T) { return Tables[static_cast<std::size_t>(T)]; }
    const Table_Change& operator[](Table_Of T) const { return Tables[static_cast<std::size_t>(T)]; }
    void Turn_Round();
};

/// Nothing when the bytes are no step.
std::optional<Step_Change> Step_Read(std::string_view Bytes);
std::string Step_Write(const Step_Change& Change);

/// The model as the step that leads to it from one without any row.
std::string Step_Of_Whole_Model();

/// What the user did, as far as the difference tells.
enum class Step_Kind : Byte {
    Parameters,
    Initialize,
    Calibrate,
    New_Object,
    Flight,
    Delete_Object,
    Attributes,
    Link,
    Add_Point,
    Delete_Point,
    Move_Point,
    Move_Object,
    New_Texture,
    Delete_Texture,
    Texture,
    Area_Data,
    Cell_Data,
    Exclusions,
    Land_Class,
    Water_Class,
    Altitude_Point
};
Step_Kind Step_Kind_Of(const Step_Change& Change);

/// "move point", in the program's language.
std::string Step_Name(Step_Kind Kind);
