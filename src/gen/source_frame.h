// gen/source_frame.h - what all sources of the generator share: how a source is opened and
// ended, its first lines, the skeleton of a VTP file, and the run of its compiler.
#pragma once

#include <functional>
#include <span>
#include <string>
#include <string_view>

#include "core/model.h"
#include "core/number_text.h"
#include "platform/files.h"

/// A source or other generated text in App_Path. An older file of the same name is deleted
/// first; every line ends in CR LF; numbers are written as Num text.
class Source_File {
public:
    /// Path is that of the file, in the program's form. When it cannot be made, a plain box
    /// with the path tells the user, and Is_Open is false.
    explicit Source_File(std::string Path);

    bool Is_Open() const { return Writer_.Is_Open(); }
    const std::string& Path() const { return Path_; }

    template <typename... Piece>
    void Line(const Piece&... P) {
        (Add(P), ...);
        Writer_.Put("\r\n");
    }

    /// Ends the file and tells the host of it. False, after a plain box with the path, when
    /// it could not be written whole; nothing is left of it then.
    bool Close();

private:
    void Add(std::string_view Text) { Writer_.Put(Text); }
    void Add(const char* Text) { Writer_.Put(Text); }
    void Add(const std::string& Text) { Writer_.Put(Text); }
    void Add(const Number_Chars& N) { Writer_.Put(N); }
    void Add(Int X) { Writer_.Put(Num_Text(X)); }
    void Add(Byte X) { Writer_.Put(Num_Text(X)); }
    void Add(Long X) { Writer_.Put(Num_Text(X)); }
    void Add(Double X) { Writer_.Put(Num_Text(X)); }

    std::string Path_;
    File_Writer Writer_;
};

/// Limits of a source's header in whole degrees, one outside what the file covers.
struct Bgl_Limits {
    Long North = 0, South = 0, East = 0, West = 0;
};

/// The limits of an output over the whole project, from its work grid.
Bgl_Limits Limits_Of_Project();

/// The limits of an output with a sorted list of Areas, from the first and the last of them.
Bgl_Limits Limits_Of_Areas(Int First_AreaLon, Int First_AreaLat, Int Last_AreaLon,
                           Int Last_AreaLat);

/// The six lines at the head of every source: Title followed by date and time, the includes,
/// and the BGLHeader line with Tail behind the limits.
void Source_Frame(Source_File& Out, std::string_view Title, const Bgl_Limits& Limits,
                  std::string_view Tail);

/// An Area of a VTP source.
struct Vtp_Area {
    Int AreaLon = 0;
    Int AreaLat = 0;
};

/// The lines of a VTP source behind its frame: for each Area its data, then the index and the
/// texture list. Write_Area gets the number of the Area and writes its data; Write_Texture
/// gets the number of the texture, both from 1, and writes its lines.
void Vtp_Skeleton(Source_File& Out, std::span<const Vtp_Area> Areas,
                  const std::function<void(Long)>& Write_Area, Long Nb_Textures,
                  const std::function<void(Long)>& Write_Texture);

/// NameBgl without its extension, that is without its last four characters.
std::string Bgl_Stem();

/// The path of a file of that name in App_Path.
std::string Source_Path(std::string_view Name);

/// Shows what is being made in the progress labels.
void Show_Stage(std::string_view Name, std::string_view Stage);

/// Deletes a file if there is one, and tells the host.
void Output_Delete(std::string_view Path);

/// Tells the user in a plain box that a file could not be written.
void Box_Not_Whole(const std::string& Path);

/// Runs an outside tool by its command line and waits for it, its window in Show_Mode (0 is
/// hidden). When it cannot be started, a box says so and the result is false.
bool Run_Process(std::string_view Cmd_Line, Int Show_Mode);

/// Compiles a source with the outside assembler. Gap is what stands behind the assembler's
/// name in the command line.
bool Run_BGLC(std::string_view Source, std::string_view Bgl, std::string_view Gap = "  ");
