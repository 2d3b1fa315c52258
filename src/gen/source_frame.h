// gen/source_frame.h - what all sources of the generator share: how a source is opened and
// ended, its first lines, the skeleton of a VTP file, and the run of its compiler.
#pragma once

#include <algorithm>
#include <charconv>
#include <cstddef>
#include <cstring>
#include <functional>
#include <memory>
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
    /// What has been written without Close stays.
    ~Source_File();
    Source_File(const Source_File&) = delete;
    Source_File& operator=(const Source_File&) = delete;

    bool Is_Open() const { return Writer_.Is_Open(); }
    const std::string& Path() const { return Path_; }

    /// A line of texts and numbers.
    template <typename... Piece>
    void Line(const Piece&... P) {
        char* Out = Room((Most_Of(P) + ... + 2));
        ((Out = Put(Out, P)), ...);
        *Out++ = '\r';
        *Out++ = '\n';
        Used_ = static_cast<std::size_t>(Out - Block_.get());
    }

    /// Ends the file and tells the host of it. False, after a plain box with the path, when
    /// it could not be written whole; nothing is left of it then.
    bool Close();

private:
    // Lines are made in place, since they are many and short: room for the longest that each
    // piece can be is taken once a line.
    static constexpr std::size_t Block_Size = 1 << 13;
    static constexpr std::size_t Most_Digits = 11;  // of a Long, with its sign

    template <std::size_t N>
    static constexpr std::size_t Most_Of(const char (&)[N]) {
        return N - 1;
    }
    static std::size_t Most_Of(std::string_view Text) { return Text.size(); }
    static constexpr std::size_t Most_Of(Long) { return Most_Digits; }
    static constexpr std::size_t Most_Of(Double) { return sizeof(Number_Chars); }

    template <std::size_t N>
    static char* Put(char* Out, const char (&Literal)[N]) {
        std::memcpy(Out, Literal, N - 1);
        return Out + (N - 1);
    }
    static char* Put(char* Out, std::string_view Text) {
        return std::copy(Text.begin(), Text.end(), Out);
    }
    static char* Put(char* Out, Long X) { return std::to_chars(Out, Out + Most_Digits, X).ptr; }
    static char* Put(char* Out, Double X) { return Put(Out, std::string_view(Num_Text(X))); }

    char* Room(std::size_t Most) {
        if (Most > Size_ - Used_) Make_Room(Most);
        return Block_.get() + Used_;
    }
    void Make_Room(std::size_t Most);
    void Flush();

    std::string Path_;
    File_Writer Writer_;
    std::size_t Size_ = Block_Size, Used_ = 0;
    std::unique_ptr<char[]> Block_ = std::make_unique_for_overwrite<char[]>(Block_Size);
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
