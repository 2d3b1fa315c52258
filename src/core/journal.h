// core/journal.h - the steps of the open project on disk, so that a crash loses none of them.
//
// A file App_Path\Temp\Journal*.jnl: a head with version and order of bytes, what the steps begin
// from, then a record for each step. A record has its length and a checksum of its bytes, so
// that what a crash has cut off is told from what is whole. It is this program's alone while it
// is open, and gone after a proper end.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "core/step.h"
#include "platform/byte_sum.h"

/// How a step came about.
struct Step_Flags {
    bool Joins_Last = false;  // it is one with the step before it
    bool Is_Undo = false;
    bool Is_Redo = false;
};

/// A project has been opened. As_On_Disk when the model is what the reading of its file gives;
/// else the journal begins with the whole model.
void Journal_Start(bool As_On_Disk);
/// The project is about to be saved as a file with that sum. Should the program end before the
/// journal begins afresh, the steps are not offered again when the file stands.
void Journal_Saving(std::uint64_t Sum_Of_File);
/// The project has been saved as a file with that sum: the journal begins afresh.
void Journal_Saved(std::uint64_t Sum_Of_File);
/// The model is another now, but by no step: the journal begins afresh with the whole of it.
void Journal_Begin_Anew();
/// The project is closed: the journal goes.
void Journal_End();
/// The program ends without having asked whether to save: the journal stays as it is, for the
/// next start.
void Journal_Leave();
/// What it holds is on the disk when this returns.
void Journal_Sync();

/// Appends a step. The first time that it cannot be written the user is told.
void Journal_Step(std::string_view Bytes, Step_Kind Kind, Step_Flags Flags);

/// The path of the journal being written, "" when there is none yet.
const std::string& Journal_Path();
/// A path for a journal in App_Path\Temp that no file has: "Journal", Mark, a number.
std::string Journal_Free_Path(std::string_view Mark);

/// A project file as it was when the steps began.
struct Project_Mark {
    std::uint64_t Size = 0;
    std::int64_t Time = 0;
    std::uint64_t Sum = 0;
    bool operator==(const Project_Mark&) const = default;
};
/// Nothing when it cannot be read. Sum is that of its bytes, if it is known already.
std::optional<Project_Mark> Project_Mark_Of(std::string_view Path,
                                            std::optional<std::uint64_t> Sum = {});

inline constexpr char Journal_Magic[] = "TfJournl";  // the first eight bytes
inline constexpr std::uint32_t Journal_Version = 1;
inline constexpr std::uint32_t Byte_Order_Mark = 0x01020304;
enum class Journal_Record : Byte { Base = 1, Step = 2, Save = 3 };
