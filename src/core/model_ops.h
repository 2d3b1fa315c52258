// core/model_ops.h - adding, changing and deleting what the project holds.
//
// A row returned is the row in the table named; 0 says that there is none. An object number
// or texture number that would pass its field's width is not given: the operation then changes
// nothing and returns 0.
#pragma once

#include <algorithm>
#include <cstdint>
#include <span>
#include <unordered_map>
#include <utility>
#include <vector>

#include "core/model.h"

/// Empties the project for a new one: the reserved element alone in Tab_Obj, all other tables
/// empty at their first capacities, no object number given, LodMesh 2, Mesh_Done 0. The head
/// of the project (map, calibration, output names) stays.
void Init_Tables();

/// Init_Tables, and every scalar and edit copy back to its first value. Nothing of a project
/// is left; tests begin with it.
void Model_Reset();

/// The attributes of the reserved element: all numbers 0, all strings empty.
Attr Attr_Zero();

/// A new object with one point; it gets the next object number.
Long Obj_Add(const Attr& A, Double X, Double Y);
/// A new object without points, which are to follow.
Long Obj_Add_Empty(const Attr& A);
/// Removes object I; the objects behind it move down, its points stay in the pool.
void Obj_Delete(Long I);

void Obj_Set_Attr(Long I, const Attr& A);
/// Moves every point of object I.
void Obj_Move(Long I, Double DX, Double DY);

/// Adds a point to object I behind its last point, before its first, or behind point After of
/// its chain. Returns the row of the point in Tab_Pt.
Long Pt_Append(Long I, Double X, Double Y);
Long Pt_Prepend(Long I, Double X, Double Y);
Long Pt_Insert(Long I, Long After, Double X, Double Y);

void Pt_Move(Long P, Double X, Double Y);

/// Takes point P out of the chain of object I. The last point of an object takes the object
/// with it, after message 20; false when the user said No to that.
bool Pt_Delete(Long I, Long P);

/// A number that no two squares share: of a Cell, or of the Area of a Lod8.
std::uint64_t Square_Key(const Cell_Pos& Cell);
std::uint64_t Square_Key(const Lod8& Record);

/// For each square of Of the row of its first record in Tab, or 0. Walks Tab once, however many
/// squares are asked for.
template <typename R, typename K>
std::vector<Long> Squares_Find(const Project_Table<R>& Tab, std::span<const K> Of) {
    std::unordered_map<std::uint64_t, Long> Row_Of;
    for (const K& Square : Of) Row_Of.emplace(Square_Key(Square), 0);
    for (Long I = 1; I <= Tab.Nb(); ++I) {
        const auto Asked = Row_Of.find(Square_Key(Tab[I]));
        if (Asked != Row_Of.end() && Asked->second == 0) Asked->second = I;
    }
    std::vector<Long> Rows;
    for (const K& Square : Of) Rows.push_back(Row_Of[Square_Key(Square)]);
    return Rows;
}

/// Stores one record a square: over the first of the square, or behind all others.
template <typename R>
void Squares_Store(Project_Table<R>& Tab, std::span<const R> Records) {
    const std::vector<Long> Rows = Squares_Find(Tab, Records);
    for (std::size_t I = 0; I < Records.size(); ++I)
        if (Rows[I] == 0)
            Tab.Append(Records[I]);
        else
            Tab.Edit(Rows[I]) = Records[I];
}

/// Removes the first record of each square that has one; the records behind move down.
template <typename R, typename K>
void Squares_Delete(Project_Table<R>& Tab, std::span<const K> Of) {
    std::vector<Long> Rows = Squares_Find(Tab, Of);
    std::ranges::sort(Rows);
    Rows.erase(Rows.begin(), std::ranges::upper_bound(Rows, 0));  // squares without a record
    Rows.erase(std::unique(Rows.begin(), Rows.end()), Rows.end());
    Tab.Remove_Rows(Rows);
}

/// A new texture rectangle, with Active 1 and a Num above all others, deleted ones included; the
/// lowest that is free once the highest is taken.
Long Ima_Add(Ima Record);
/// Moves or sizes texture I, in map pixels.
void Ima_Place(Long I, Double X1, Double Y1, Double X2, Double Y2);
/// Texture I becomes Record, but for its Num.
void Ima_Store(Long I, Ima Record);
/// Texture I is out of use, and no object is asked whether it was linked to it.
void Ima_Drop(Long I);
/// Makes object I a polygon that shows the texture Num, or takes that link away again.
void Obj_Link(Long I, Int Num);
void Obj_Unlink(Long I);
/// Deletes texture I: objects linked to it become plain LWM polygons.
void Ima_Delete(Long I);

/// A new altitude sample, with Active 1.
Long PtGrid_Add(Double X, Double Y, Single Alt);
/// Sample I has another altitude; a deleted one is live again, at (X, Y).
void PtGrid_Change(Long I, Double X, Double Y, Single Alt);
void PtGrid_Delete(Long I);
/// What was entered and chosen last belongs to another project.
void PtGrid_Forget();
