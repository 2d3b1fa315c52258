// gen/tex_table.h - the textures of a file of textured polygons, each once.
#pragma once

#include <array>
#include <string>
#include <unordered_map>

#include "core/model.h"
#include "core/table.h"

/// What a polygon asks for.
struct Tex_Spec {
    Int LandClass = 0;                 // 0 the class LC, else the files Names
    Int LC = 0;                        // 0 unless LandClass is 0
    std::array<std::string, 6> Names;  // of files without their directories, or empty
    Int Tex_Type = 4;
};

/// A row of the table.
struct Tex {
    Int LandClass = 0;
    Int LC = 0;
    std::string Name;  // the names joined by ";", empty when LandClass is 0
    Int Tex_Type = 4;

    bool operator==(const Tex&) const = default;
};

/// The name that stands in the file for six names. When the first one is empty it is that of a
/// texture of the simulator. An empty name in between repeats the one before it; empty names at
/// the end add nothing.
std::string Tex_Join(const std::array<std::string, 6>& Names);

class Tex_List {
public:
    /// The row of what Wanted asks for, added if it is new.
    Long Tex_Find(const Tex_Spec& Wanted);

    /// The row for the attributes of an object. A texture name that is not empty and no valid
    /// path counts as the name accepted last by this list, so the order of the calls matters.
    /// A must stay in its place for the life of the list.
    Long Find_For(const Attr& A);

    const Table<Tex>& Tab_Tex() const { return Tab_Tex_; }

private:
    struct Hash {
        std::size_t operator()(const Tex& T) const;
    };
    bool Take_Names(const Attr& A, Tex_Spec& Wanted);

    Table<Tex> Tab_Tex_{10, 3};
    std::unordered_map<Tex, Long, Hash> Row_;
    std::string Last_Name_;            // accepted last
    const Attr* Last_Attr_ = nullptr;  // asked for last, if that would give Last_Row_ again
    Long Last_Row_ = 0;
};
