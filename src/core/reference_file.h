// core/reference_file.h - reference files (.Ref): the attributes of an object under a name.
//
// They stand in Resource under App_Path. A first line that states the version, then name, text
// and nesting text, the numbers of the attributes in one line, and six texture names. Versions
// below 4.0 have fewer numbers; the rest have fixed values then.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "core/numbers.h"

struct References {
    std::string Ref_Name;   // of the attributes in Cur_Attr, as the object dialog shows it
    Int Ref_Cancelled = 1;  // the chooser did not end by its Ok
    std::vector<std::string> Ref_Files;  // what the chooser offers: names of files, from 0,
    std::vector<std::string> Ref_Names;  // and the names in them
    Long Nb_Refs = 0;
};

inline References The_References;

inline std::string& Ref_Name = The_References.Ref_Name;
inline Int& Ref_Cancelled = The_References.Ref_Cancelled;
inline std::vector<std::string>& Ref_Files = The_References.Ref_Files;
inline std::vector<std::string>& Ref_Names = The_References.Ref_Names;
inline Long& Nb_Refs = The_References.Nb_Refs;

/// The directory of the reference files, with its final backslash.
std::string Ref_Dir();

/// Reads a file into Cur_Attr and Ref_Name and makes it the last one used, in DerRefLu and in
/// the settings. A file that is not there changes nothing. One that states no version (message
/// 30), is damaged (message 31) or can't be read (a plain box) doesn't either, nor does it
/// become the last one used. True when it was read.
bool Ref_Read(std::string_view Path);

/// The same for the bytes of a file, without making it the last one used.
bool Ref_Read_Text(std::string_view Text, std::string_view Path = {});

/// Writes Cur_Attr under Name, trimmed and with ' for each double quote, which becomes Ref_Name,
/// and makes the file the last one used. An older file is replaced in one step; when that fails
/// a plain box says so, the file is as it was, and nothing changes. True when it was written.
bool Ref_Save(std::string_view Path, std::string_view Name);

/// Fills Ref_Files, Ref_Names and Nb_Refs with the files of Ref_Dir whose extension is REF and
/// which have a second line, in the order of their names, case ignored. An empty name is "???".
void Ref_List();
